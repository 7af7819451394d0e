#include <ombrin/OmScreenShooter_FullscreenCutter.h>

#include "screen/CutSelection.h"
#include "screen/DesktopPicture.h"

#include <QtGui/QFontInfo>
#include <QtGui/QPaintEvent>
#include <QtGui/QPainter>

using ombrin::CutSelection;
using ombrin::CutZone;

namespace {

constexpr QColor kDimming(0x60, 0x60, 0x60);
constexpr qreal kDimmingOpacity = 0.5;
constexpr QPoint kHintPosition(20, 20);
constexpr QSize kHintSize(500, 500);
constexpr QPoint kHintShadow(2, 2);
constexpr int kHintFontGrowth = 10; // points

} // namespace

/// Paints what of the desktop, as the user is to see it, \a window shows in \a exposed.
void OmScreenShooter_FullscreenCutter::paint(QWidget *window, const QRegion &exposed)
{
    const ombrin::DesktopPicture *shown = picture();
    if (!shown)
        return;
    QPainter painter(window);
    painter.translate(-originOf(window));
    const QRegion region = exposed.translated(originOf(window));
    for (const QRect &rect : region)
        shown->paint(&painter, rect);

    const QRegion dimmed = m_selection->isValid() ? region - QRegion(m_selection->rect()) : region;
    painter.setOpacity(kDimmingOpacity);
    for (const QRect &rect : dimmed)
        painter.fillRect(rect, kDimming);
    painter.setOpacity(1);

    if (m_selection->isValid())
        paintSelection(&painter);
    const QRect snap = m_selection->snapButton();
    if (region.intersects(snap))
        paintButton(&painter, m_snap, snap, m_selection->drag() == CutZone::SnapButton);
    const QRect close = m_selection->closeButton();
    if (region.intersects(close))
        paintButton(&painter, m_close, close, m_selection->drag() == CutZone::CloseButton);
    if (m_showHint && region.intersects(hintBox()))
        paintHint(&painter);
}

void OmScreenShooter_FullscreenCutter::paintSelection(QPainter *painter) const
{
    const QRect area = m_selection->rect();
    painter->setPen(QPen(Qt::black, 1, Qt::DashLine, Qt::RoundCap, Qt::RoundJoin));
    painter->setBrush(Qt::NoBrush);
    // A line is drawn from pixel to pixel: the last ones are at right - 1 and bottom - 1.
    painter->drawRect(area.adjusted(1, 1, -2, -2));
    for (const QRect &handle : m_selection->handles())
        painter->fillRect(handle, Qt::black);
}

void OmScreenShooter_FullscreenCutter::paintButton(QPainter *painter, const Button &button,
                                                   const QRect &place, bool isPressed) const
{
    const QPixmap &image = !button.isHovered ? button.normal
                           : isPressed       ? button.pressed
                                             : button.hovered;
    painter->drawPixmap(place.topLeft(), image);
}

QRect OmScreenShooter_FullscreenCutter::hintBox() const
{
    return QRect(originOf(this) + kHintPosition, kHintSize);
}

void OmScreenShooter_FullscreenCutter::paintHint(QPainter *painter) const
{
    QFont larger = font();
    larger.setPointSizeF(QFontInfo(font()).pointSizeF() + kHintFontGrowth);
    painter->setFont(larger);
    painter->setRenderHint(QPainter::TextAntialiasing);
    constexpr int kFlags = Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap;
    painter->setPen(Qt::black);
    painter->drawText(hintBox().translated(kHintShadow), kFlags, m_hint);
    painter->setPen(Qt::white);
    painter->drawText(hintBox(), kFlags, m_hint);
}
