#include <ombrin/OmScribbledZebraPoleList.h>

#include <memory>

template class COmMonitoredList<OmScribbledZebraPole *>;

OmScribbledZebraPoleList::OmScribbledZebraPoleList(QObject *parent)
    : QObject(parent)
{}

OmScribbledZebraPoleList::~OmScribbledZebraPoleList() = default;

void OmScribbledZebraPoleList::append(int indent, bool isAlignedLeftOrRight)
{
    append(std::make_unique<OmScribbledZebraPole>(indent, isAlignedLeftOrRight, nullptr).release());
}

void OmScribbledZebraPoleList::Override_ChangesHappened()
{
    Q_EMIT signalOnChanged();
}

bool OmScribbledZebraPoleList::Override_BeforeItemAdded(OmScribbledZebraPole *&item)
{
    if (!item || contains(item))
        return false;
    connect(item, &OmScribbledZebraPole::signalOnChanged, this,
            &OmScribbledZebraPoleList::slotOnItemChanged, Qt::UniqueConnection);
    connect(item, &QObject::destroyed, this, &OmScribbledZebraPoleList::onItemDestroyed,
            Qt::UniqueConnection);
    item->setParent(this);
    return true;
}

bool OmScribbledZebraPoleList::Override_BeforeItemDeleted(OmScribbledZebraPole *&item)
{
    disconnect(item, &OmScribbledZebraPole::signalOnChanged, this,
               &OmScribbledZebraPoleList::slotOnItemChanged);
    disconnect(item, &QObject::destroyed, this, &OmScribbledZebraPoleList::onItemDestroyed);
    return true;
}

void OmScribbledZebraPoleList::slotOnItemChanged()
{
    Q_EMIT signalOnChanged();
}

// Without the hooks, which have nothing left to work with.
void OmScribbledZebraPoleList::onItemDestroyed(QObject *object)
{
    IgnoreChanges(true);
    ++m_deleteHooksSuppressed;
    removeAll(reinterpret_cast<OmScribbledZebraPole *>(object));
    --m_deleteHooksSuppressed;
    IgnoreChanges(false);
    Override_ChangesHappened();
}
