#include <ombrin/OmSearchField.h>

#include <ombrin/OmQtCompat.h>

#include "skin/SkinPixmap.h"
#include "widgets/LineEditChange.h"

#include <QtWidgets/QStyleOptionFrame>
#include <QtWidgets/QStylePainter>

namespace ombrin {

namespace {

constexpr int kEraseExtent = 16;
constexpr int kIconMargin = 3;
constexpr int kTextMargin = 2;

// Against rect's left or right edge, whichever the alignment means in the field's direction.
void drawIcon(QStylePainter *painter, const QWidget *field, const QRect &rect,
              Qt::Alignment alignment, const QString &path)
{
    const QPixmap icon = skinPixmap(path, field->devicePixelRatioF());
    if (icon.isNull())
        return;
    const Qt::LayoutDirection direction = field->layoutDirection();
    const QSize size = (QSizeF(icon.size()) / icon.devicePixelRatio()).toSize();
    const QRect place = QStyle::alignedRect(direction, alignment | Qt::AlignVCenter, size,
                                            QStyle::visualRect(direction, field->rect(), rect));
    painter->drawItemPixmap(place, Qt::AlignCenter, icon);
}

} // namespace

OmSearchField::OmSearchField(QWidget *parent)
    : QLineEdit(parent)
{
    setProperty("class", QStringLiteral("OmSearchField"));
    setStyleSheet(QStringLiteral(".OmSearchField { padding-left: 18px; padding-right: 18px}"));
    setAttribute(Qt::WA_MouseTracking);
}

OmSearchField::~OmSearchField() = default;

void OmSearchField::setDefaultText(const QString &text)
{
    if (accessibleName() == m_defaultText)
        setAccessibleName(text);
    m_defaultText = text;
}

QString OmSearchField::defaultText() const
{
    return m_defaultText;
}

void OmSearchField::mousePressEvent(QMouseEvent *event)
{
    const bool erases = isErasable() && eraseArea().contains(mousePosition(event));
    if (erases && !changeText(this, [this] { clear(); }))
        return;
    QLineEdit::mousePressEvent(event);
}

void OmSearchField::mouseMoveEvent(QMouseEvent *event)
{
    setCursor(eraseArea().contains(mousePosition(event)) ? Qt::ArrowCursor : Qt::IBeamCursor);
    QLineEdit::mouseMoveEvent(event);
}

void OmSearchField::paintEvent(QPaintEvent *event)
{
    QLineEdit::paintEvent(event);

    QStylePainter painter(this);
    drawIcon(&painter, this, rect().adjusted(kIconMargin, 0, 0, 0), Qt::AlignLeft,
             QStringLiteral(":/search-14"));
    if (!text().isEmpty()) {
        if (isErasable())
            drawIcon(&painter, this, rect().adjusted(0, 0, -kIconMargin, 0), Qt::AlignRight,
                     QStringLiteral(":/erase-left-14"));
        return;
    }
    if (m_defaultText.isEmpty() || hasFocus())
        return;

    QStyleOptionFrame option;
    initStyleOption(&option);
    const QRect contents = style()->subElementRect(QStyle::SE_LineEditContents, &option, this)
                                   .adjusted(kTextMargin, 0, -kTextMargin, 0);
    painter.setClipRect(contents, Qt::ReplaceClip);
    const Qt::Alignment alignment =
            QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter);
    painter.drawItemText(contents, static_cast<int>(alignment), option.palette, false,
                         m_defaultText, QPalette::Mid);
}

QRect OmSearchField::eraseArea() const
{
    QRect area = rect();
    area.setLeft(area.right() - kEraseExtent);
    return QStyle::visualRect(layoutDirection(), rect(), area);
}

bool OmSearchField::isErasable() const
{
    return !isReadOnly();
}

} // namespace ombrin
