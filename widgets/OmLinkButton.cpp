#include <ombrin/OmLinkButton.h>

#include "widgets/KeyboardAccess.h"
#include "widgets/TextElision.h"
#include "widgets/WidgetAccessibility.h"

#include <QtWidgets/QStyleOption>
#include <QtWidgets/QStylePainter>

namespace ombrin {

namespace {

constexpr int kMargin = 2;

void drawArrow(QStylePainter *painter, const OmLinkButton *button, const QRect &text)
{
    const bool isMirrored = button->layoutDirection() == Qt::RightToLeft;
    const int width = button->fontMetrics().height();
    QStyleOption option;
    option.initFrom(button);
    option.rect = QRect(isMirrored ? text.left() - width + 1 : text.right(), text.top(), width,
                        text.height());
    const QStyle::PrimitiveElement folded =
            isMirrored ? QStyle::PE_IndicatorArrowLeft : QStyle::PE_IndicatorArrowRight;
    painter->drawPrimitive(button->isChecked() ? QStyle::PE_IndicatorArrowDown : folded, option);
}

} // namespace

OmLinkButton::OmLinkButton(QWidget *parent)
    : QAbstractButton(parent)
{
    initializeButton();
}

OmLinkButton::OmLinkButton(const QString &text, QWidget *parent)
    : QAbstractButton(parent)
{
    initializeButton();
    setText(text);
}

OmLinkButton::~OmLinkButton() = default;

void OmLinkButton::setTextElideMode(Qt::TextElideMode mode)
{
    m_textElideMode = mode;
    update();
}

Qt::TextElideMode OmLinkButton::textElideMode() const
{
    return m_textElideMode;
}

QSize OmLinkButton::sizeHint() const
{
    ensurePolished();
    const QFontMetrics metrics = fontMetrics();
    const QRect bounds = metrics.boundingRect(text());
    const int arrow = isCheckable() ? metrics.height() : 0;
    return QSize(bounds.width() + 2 * kMargin + arrow, bounds.height());
}

void OmLinkButton::initializeButton()
{
    installWidgetAccessibility();
    setCursor(Qt::PointingHandCursor);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void OmLinkButton::paintEvent(QPaintEvent *)
{
    const QFontMetrics metrics = fontMetrics();
    const QRect textRect = contentsRect().adjusted(kMargin, 0, -kMargin, 0);
    const QString shown = elidedText(metrics, text(), m_textElideMode, textRect.width());

    QStylePainter painter(this);
    painter.save();
    painter.setPen(palette().color(QPalette::Link));
    const Qt::Alignment alignment =
            QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter);
    QRect drawn;
    painter.drawText(textRect, static_cast<int>(alignment), shown, &drawn);
    const int underline = drawn.bottom() + 1 - metrics.descent();
    painter.drawLine(drawn.left(), underline, drawn.right(), underline);
    if (isCheckable())
        drawArrow(&painter, this, drawn);
    painter.restore();
    drawFocusFrame(&painter, this);
}

} // namespace ombrin
