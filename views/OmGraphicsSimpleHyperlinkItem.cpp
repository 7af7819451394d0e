#include <ombrin/OmGraphicsSimpleHyperlinkItem.h>

#include <ombrin/OmScribbledZebraView.h>

#include <QtGui/QCursor>
#include <QtGui/QFont>
#include <QtWidgets/QGraphicsScene>
#include <QtWidgets/QGraphicsSceneMouseEvent>

OmGraphicsSimpleHyperlinkItem::OmGraphicsSimpleHyperlinkItem(QGraphicsItem *parent,
                                                             QGraphicsScene *scene)
    : QGraphicsSimpleTextItem(parent)
{
    if (scene)
        scene->addItem(this);
    setCursor(Qt::PointingHandCursor);
    setAcceptHoverEvents(true);
    refreshItem();
}

OmGraphicsSimpleHyperlinkItem::~OmGraphicsSimpleHyperlinkItem() = default;

bool OmGraphicsSimpleHyperlinkItem::isEnabled() const
{
    return m_isEnabled;
}

void OmGraphicsSimpleHyperlinkItem::setIsEnabled(bool isEnabled)
{
    if (m_isEnabled == isEnabled)
        return;
    m_isEnabled = isEnabled;
    m_isHovered = false;
    setCursor(isEnabled ? Qt::PointingHandCursor : Qt::ArrowCursor);
    refreshItem();
}

void OmGraphicsSimpleHyperlinkItem::hoverEnterEvent(QGraphicsSceneHoverEvent *)
{
    setHovered(true);
}

void OmGraphicsSimpleHyperlinkItem::hoverMoveEvent(QGraphicsSceneHoverEvent *)
{
    setHovered(true);
}

void OmGraphicsSimpleHyperlinkItem::hoverLeaveEvent(QGraphicsSceneHoverEvent *)
{
    setHovered(false);
}

// An accepted press makes the item the one that gets the release.
void OmGraphicsSimpleHyperlinkItem::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    event->accept();
}

void OmGraphicsSimpleHyperlinkItem::mouseReleaseEvent(QGraphicsSceneMouseEvent *event)
{
    if (!m_isEnabled || !contains(event->pos()))
        return;
    QWidget *const viewport = event->widget();
    auto *const view =
            qobject_cast<OmScribbledZebraView *>(viewport ? viewport->parentWidget() : nullptr);
    if (view && view->postponeActivation(this))
        return;
    Q_EMIT signalOnLinkActivated(*this);
}

bool OmGraphicsSimpleHyperlinkItem::isUnderlined() const
{
    return m_isEnabled && m_isHovered;
}

void OmGraphicsSimpleHyperlinkItem::setHovered(bool hovered)
{
    m_isHovered = hovered && m_isEnabled;
    refreshItem();
}

void OmGraphicsSimpleHyperlinkItem::refreshItem()
{
    QFont changed = font();
    changed.setUnderline(isUnderlined());
    if (changed != font())
        setFont(changed);
}
