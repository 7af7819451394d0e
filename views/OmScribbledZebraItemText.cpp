#include <ombrin/OmScribbledZebraItemText.h>

#include "views/ZebraTextItem.h"

#include <QtGui/QFontMetrics>

OmScribbledZebraItemText::OmScribbledZebraItemText(int column, int row, bool isAlignedLeftOrRight,
                                                   const QString &text, QObject *parent)
    : OmScribbledZebraItemBase(column, row, isAlignedLeftOrRight, parent)
    , m_text(text)
{
    DoOnChanged(); // measures it; nobody listens yet
}

OmScribbledZebraItemText::~OmScribbledZebraItemText() = default;

template <typename Value>
void OmScribbledZebraItemText::change(Value &member, const Value &value)
{
    if (member == value)
        return;
    member = value;
    DoOnChanged();
}

QString OmScribbledZebraItemText::text() const
{
    return m_text;
}

void OmScribbledZebraItemText::setText(const QString &text)
{
    change(m_text, text);
}

QFont OmScribbledZebraItemText::font() const
{
    return m_font;
}

void OmScribbledZebraItemText::setFont(const QFont &font)
{
    change(m_font, font);
}

QPen OmScribbledZebraItemText::pen() const
{
    return m_pen;
}

void OmScribbledZebraItemText::setPen(const QPen &pen)
{
    change(m_pen, pen);
}

QBrush OmScribbledZebraItemText::brush() const
{
    return m_brush;
}

void OmScribbledZebraItemText::setBrush(const QBrush &brush)
{
    change(m_brush, brush);
}

QSize OmScribbledZebraItemText::recalcSize() const
{
    return QFontMetrics(m_font).size(Qt::TextSingleLine, m_text);
}

QGraphicsItem *OmScribbledZebraItemText::CreateGraphicsItem()
{
    auto *const item = new QGraphicsSimpleTextItem;
    AdjustGraphicsItem(item);
    return item;
}

void OmScribbledZebraItemText::AdjustGraphicsItem(QGraphicsItem *item)
{
    auto *const textItem = dynamic_cast<QGraphicsSimpleTextItem *>(item);
    if (!textItem)
        return;
    ombrin::adjustText(textItem, m_text, m_font);
    ombrin::adjustColors(textItem, m_pen, m_brush);
}
