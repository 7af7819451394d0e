#include <ombrin/OmScribbledZebraItemLink.h>

#include "views/ZebraTextItem.h"

#include <ombrin/OmGraphicsSimpleHyperlinkItem.h>

OmScribbledZebraItemLink::OmScribbledZebraItemLink(int column, int row, bool isAlignedLeftOrRight,
                                                   const QString &text, QObject *parent)
    : OmScribbledZebraItemText(column, row, isAlignedLeftOrRight, text, parent)
{}

OmScribbledZebraItemLink::~OmScribbledZebraItemLink() = default;

bool OmScribbledZebraItemLink::isEnabled() const
{
    return m_isEnabled;
}

void OmScribbledZebraItemLink::setIsEnabled(bool isEnabled)
{
    if (m_isEnabled == isEnabled)
        return;
    m_isEnabled = isEnabled;
    DoOnChanged();
}

QPen OmScribbledZebraItemLink::disabledPen() const
{
    return m_disabledPen;
}

void OmScribbledZebraItemLink::setDisabledPen(const QPen &pen)
{
    if (m_disabledPen == pen)
        return;
    m_disabledPen = pen;
    DoOnChanged();
}

QBrush OmScribbledZebraItemLink::disabledBrush() const
{
    return m_disabledBrush;
}

void OmScribbledZebraItemLink::setDisabledBrush(const QBrush &brush)
{
    if (m_disabledBrush == brush)
        return;
    m_disabledBrush = brush;
    DoOnChanged();
}

QGraphicsItem *OmScribbledZebraItemLink::CreateGraphicsItem()
{
    auto *const item = new OmGraphicsSimpleHyperlinkItem(nullptr, nullptr);
    connect(item, &OmGraphicsSimpleHyperlinkItem::signalOnLinkActivated, this,
            &OmScribbledZebraItemLink::slotOnGraphicsItemActivated);
    AdjustGraphicsItem(item);
    return item;
}

void OmScribbledZebraItemLink::AdjustGraphicsItem(QGraphicsItem *item)
{
    auto *const link = dynamic_cast<OmGraphicsSimpleHyperlinkItem *>(item);
    if (!link)
        return;
    QFont shownFont = font();
    if (link->isUnderlined()) // as the mouse is over it, which a layout does not change
        shownFont.setUnderline(true);
    ombrin::adjustText(link, text(), shownFont);
    if (link->isEnabled() != m_isEnabled)
        link->setIsEnabled(m_isEnabled);
    if (m_isEnabled)
        ombrin::adjustColors(link, pen(), brush());
    else
        ombrin::adjustColors(link, m_disabledPen, m_disabledBrush);
}

void OmScribbledZebraItemLink::slotOnGraphicsItemActivated()
{
    Q_EMIT signalOnLinkActivated(*this);
}
