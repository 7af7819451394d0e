#include <ombrin/OmSmoothDelegate.h>

#include <QtGui/QFontMetrics>
#include <QtGui/QPainter>
#include <QtWidgets/QStyle>

namespace ombrin {

namespace {

constexpr int kNoRow = 10000000;
constexpr int kExtraHeight = 6;
constexpr int kBesideText = 6;
constexpr QColor kHoveredText(128, 128, 128);
constexpr int kQuarter = 90 * 16; // in the units of arcs

QRect contentRect(const QRect &row)
{
    return row.adjusted(4, 3, 0, -1);
}

} // namespace

OmSmoothDelegate::OmSmoothDelegate(QObject *parent)
    : QItemDelegate(parent)
    , m_hoveredRow(kNoRow)
{}

OmSmoothDelegate::~OmSmoothDelegate() = default;

void OmSmoothDelegate::setFillColor(const QColor &color)
{
    m_fillColor = color;
}

void OmSmoothDelegate::setOutlineColor(const QColor &color)
{
    m_outlineColor = color;
}

void OmSmoothDelegate::setTextColor(const QColor &color)
{
    m_textColor = color;
}

void OmSmoothDelegate::setListRect(const QRect &rect)
{
    m_listRect = rect;
}

void OmSmoothDelegate::setHovered(int row, const QPoint &mousePosition)
{
    m_hoveredRow = row;
    m_mousePosition = mousePosition;
}

bool OmSmoothDelegate::isOverText(const QStyleOptionViewItem &option,
                                  const QModelIndex &index) const
{
    if (index.row() != m_hoveredRow)
        return false;
    QStyleOptionViewItem entry = setOptions(index, option);
    entry.rect = contentRect(option.rect);
    QRect check = rect(entry, index, Qt::CheckStateRole);
    QRect decoration = rect(entry, index, Qt::DecorationRole);
    QRect text = rect(entry, index, Qt::DisplayRole);
    doLayout(entry, &check, &decoration, &text, false);
    return isOverText(text, entry, index.data().toString());
}

// The row is erased over its own height only.
void OmSmoothDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                             const QModelIndex &index) const
{
    const QRect row = option.rect;
    painter->eraseRect(0, row.top(), row.right(), row.height());
    QStyleOptionViewItem entry = option;
    entry.rect = contentRect(row);
    if (option.state & QStyle::State_Selected) {
        paintTab(painter, row);
        entry.state &= ~QStyle::State_Selected;
        entry.palette.setColor(QPalette::Text, m_textColor);
    }
    m_paintedRow = index.row();
    QItemDelegate::paint(painter, entry, index);
    m_paintedRow = -1;
}

QSize OmSmoothDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const QSize size = QItemDelegate::sizeHint(option, index);
    return size.isValid() ? size + QSize(0, kExtraHeight) : size;
}

void OmSmoothDelegate::drawDisplay(QPainter *painter, const QStyleOptionViewItem &option,
                                   const QRect &rect, const QString &text) const
{
    if (m_paintedRow != m_hoveredRow || !isOverText(rect, option, text))
        return QItemDelegate::drawDisplay(painter, option, rect, text);
    QStyleOptionViewItem link = option;
    link.font.setUnderline(true);
    link.palette.setColor(QPalette::Text, kHoveredText);
    QItemDelegate::drawDisplay(painter, link, rect, text);
}

void OmSmoothDelegate::paintTab(QPainter *painter, const QRect &rect) const
{
    const int left = rect.left();
    const int top = rect.top();
    const int right = rect.right();
    const int bottom = rect.bottom();
    painter->save();
    painter->fillRect(QRect(QPoint(left + 4, top + 4), QPoint(right, bottom - 2)), m_fillColor);
    painter->setPen(m_outlineColor);
    // On a denser screen a line lies around its coordinates, here it is to lie below and right.
    if (painter->device()->devicePixelRatioF() > 1)
        painter->translate(0.5, 0.5);
    painter->drawLine(right, top + 3, left + 8, top + 3);
    painter->drawArc(left + 3, top + 3, 9, 8, kQuarter, kQuarter);
    painter->drawLine(left + 3, top + 8, left + 3, bottom - 5);
    painter->drawArc(left + 3, bottom - 9, 8, 8, 2 * kQuarter, kQuarter);
    painter->drawLine(left + 8, bottom - 1, right, bottom - 1);
    painter->restore();
}

// The text begins at the left, or at the right where one reads from there.
bool OmSmoothDelegate::isOverText(const QRect &textRect, const QStyleOptionViewItem &option,
                                  const QString &text) const
{
    QRect link = textRect;
    link.setWidth(QFontMetrics(option.font).horizontalAdvance(text) + kBesideText);
    link = QStyle::visualRect(option.direction, textRect, link);
    return textRect.contains(m_mousePosition) && link.contains(m_mousePosition);
}

} // namespace ombrin
