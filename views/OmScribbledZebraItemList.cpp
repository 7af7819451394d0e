#include <ombrin/OmScribbledZebraItemList.h>

#include "views/ZebraLayout.h"

#include <ombrin/OmScribbledZebraView.h>

template class COmMonitoredList<OmScribbledZebraItemBase *>;

OmScribbledZebraItemList::OmScribbledZebraItemList(QObject *parent)
    : QObject(parent)
{}

OmScribbledZebraItemList::~OmScribbledZebraItemList() = default;

void OmScribbledZebraItemList::Override_ChangesHappened()
{
    Q_EMIT signalOnChanged();
}

bool OmScribbledZebraItemList::Override_BeforeItemAdded(OmScribbledZebraItemBase *&item)
{
    if (!item)
        return false;
    // Asked of the list only if it watches the item: most items come from elsewhere.
    const bool isHeld = disconnectItem(item) && contains(item);
    // sender() would cost more the more items there are.
    connect(item, &OmScribbledZebraItemBase::signalOnChanged, this, [this, item] {
        noteChange(item);
        slotOnItemChanged();
    });
    connect(item, &QObject::destroyed, this, [this, item] { onItemDestroyed(item); });
    item->setParent(this);
    noteChange(item);
    return !isHeld;
}

bool OmScribbledZebraItemList::Override_BeforeItemDeleted(OmScribbledZebraItemBase *&item)
{
    disconnectItem(item);
    if (ombrin::ZebraLayout *const layout = viewLayout())
        layout->forget(item);
    return true;
}

void OmScribbledZebraItemList::slotOnItemChanged()
{
    Q_EMIT signalOnChanged();
}

// Whether the list was connected to the item, as it is to those that it holds, and to those that
// a subclass would not have in the end.
bool OmScribbledZebraItemList::disconnectItem(OmScribbledZebraItemBase *item)
{
    disconnect(item, &OmScribbledZebraItemBase::signalOnChanged, this, nullptr);
    return disconnect(item, &QObject::destroyed, this, nullptr);
}

void OmScribbledZebraItemList::noteChange(OmScribbledZebraItemBase *item)
{
    if (ombrin::ZebraLayout *const layout = viewLayout())
        layout->noteChange(item);
}

// The layout of the view that shows this list, if it is that of a view.
ombrin::ZebraLayout *OmScribbledZebraItemList::viewLayout() const
{
    auto *const view = qobject_cast<OmScribbledZebraView *>(parent());
    return view && view->m_items == this ? view->m_layout.get() : nullptr;
}

// Without the hooks, which have nothing left to work with: item is an address, no more.
void OmScribbledZebraItemList::onItemDestroyed(OmScribbledZebraItemBase *item)
{
    if (ombrin::ZebraLayout *const layout = viewLayout())
        layout->forget(item);
    IgnoreChanges(true);
    ++m_deleteHooksSuppressed;
    removeAll(item);
    --m_deleteHooksSuppressed;
    IgnoreChanges(false);
    Override_ChangesHappened();
}
