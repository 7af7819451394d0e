#include <ombrin/OmScribbledZebraView.h>

#include "views/ZebraLayout.h"

#include <ombrin/OmGraphicsSimpleHyperlinkItem.h>

#include <QtGui/QPainter>
#include <QtWidgets/QGraphicsScene>

#include <utility>

namespace {

constexpr QRgb kEvenStripe = 0xFFFFFFFF;
constexpr QRgb kOddStripe = 0xFFF2F2F2;

} // namespace

OmScribbledZebraView::OmScribbledZebraView(QWidget *parent)
    : QGraphicsView(parent)
    , m_scene(new QGraphicsScene(this))
    , m_items(new OmScribbledZebraItemList(this))
    , m_poles(new OmScribbledZebraPoleList(this))
{
    m_layout = std::make_shared<ombrin::ZebraLayout>(m_scene, *m_items, *m_poles);
    setScene(m_scene);
    connect(m_items, &OmScribbledZebraItemList::signalOnChanged, this,
            &OmScribbledZebraView::slotOnItemsChanged);
    connect(m_poles, &OmScribbledZebraPoleList::signalOnChanged, this,
            &OmScribbledZebraView::slotOnItemsChanged);
    setRenderHints(QPainter::TextAntialiasing);
    setResizeAnchor(QGraphicsView::AnchorViewCenter);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
}

OmScribbledZebraView::~OmScribbledZebraView() = default;

OmScribbledZebraItemList &OmScribbledZebraView::items()
{
    return *m_items;
}

OmScribbledZebraPoleList &OmScribbledZebraView::poles()
{
    return *m_poles;
}

int OmScribbledZebraView::minimumLineHeight() const
{
    return m_minimumLineHeight;
}

void OmScribbledZebraView::setMinimumLineHeight(int height)
{
    if (m_minimumLineHeight == height)
        return;
    m_minimumLineHeight = height;
    refreshView();
}

void OmScribbledZebraView::blockRefresh(bool block)
{
    m_refreshBlocked = block;
    if (!block)
        refreshView();
}

void OmScribbledZebraView::resizeEvent(QResizeEvent *)
{
    refreshView();
}

// The stripes that show, down to the end of the scene.
void OmScribbledZebraView::drawBackground(QPainter *painter, const QRectF &rect)
{
    const QRect sceneArea = m_scene->sceneRect().toRect();
    const QRect exposed = rect.intersected(sceneArea).toAlignedRect();
    if (exposed.isEmpty())
        return;
    const ombrin::ZebraLines &lines = m_layout->lines();
    ombrin::ZebraLines::Span span;
    for (int row = lines.rowAt(exposed.top());; ++row) {
        span = lines.span(row);
        const QRect stripe(0, span.top, sceneArea.width(), span.bottom - span.top);
        painter->fillRect(stripe & sceneArea, QColor(row % 2 == 0 ? kEvenStripe : kOddStripe));
        if (span.bottom > exposed.bottom() || span.bottom <= span.top)
            return;
    }
}

// A clicked link is reported when the base class is done with the event, so that the view may be
// deleted then.
void OmScribbledZebraView::mouseReleaseEvent(QMouseEvent *event)
{
    m_isReleasingMouse = true;
    QGraphicsView::mouseReleaseEvent(event);
    m_isReleasingMouse = false;
    const QPointer<OmGraphicsSimpleHyperlinkItem> link = std::exchange(m_activatedLink, nullptr);
    if (link)
        Q_EMIT link->signalOnLinkActivated(*link);
}

bool OmScribbledZebraView::postponeActivation(OmGraphicsSimpleHyperlinkItem *link)
{
    if (m_isReleasingMouse)
        m_activatedLink = link;
    return m_isReleasingMouse;
}

void OmScribbledZebraView::slotOnItemsChanged()
{
    const bool itemsAreKnown = sender() == m_items && m_layout->hasNotes();
    refreshView(itemsAreKnown ? Extent::ChangedItems : Extent::AllItems);
}

// Items are a host's: their functions may change the model, whose layout follows later, and delete
// the view.
void OmScribbledZebraView::refreshView(Extent extent)
{
    if (m_refreshBlocked)
        return;
    if (m_isRefreshing) {
        if (!std::exchange(m_isRefreshQueued, true))
            QMetaObject::invokeMethod(this, "slotOnItemsChanged", Qt::QueuedConnection);
        return;
    }
    const QPointer<OmScribbledZebraView> guard(this);
    const std::shared_ptr<ombrin::ZebraLayout> layout = m_layout;
    m_isRefreshing = true;
    m_isRefreshQueued = false;
    const QSize size = viewport()->size();
    const bool linesMoved = extent == Extent::AllItems
                                    ? layout->layOutAll(size, m_minimumLineHeight)
                                    : layout->layOutChanges(size, m_minimumLineHeight);
    if (!guard)
        return;
    m_isRefreshing = false;
    if (linesMoved)
        viewport()->update();
    refreshSceneRect();
}

// Either call may make a scroll bar come or go, whereupon the view is laid out anew.
void OmScribbledZebraView::refreshSceneRect()
{
    const QRect bounds = m_layout->bounds();
    const QPointer<OmScribbledZebraView> guard(this);
    if (m_scene->sceneRect().toRect() != bounds)
        m_scene->setSceneRect(bounds);
    if (guard)
        updateSceneRect(m_scene->sceneRect());
}
