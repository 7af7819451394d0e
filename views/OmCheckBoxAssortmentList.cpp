#include <ombrin/OmCheckBoxAssortmentList.h>

#include <ombrin/OmCheckBoxAssortmentView.h>

#include <utility>

template class COmMonitoredList<ombrin::OmCheckBoxAssortmentItem *>;

namespace ombrin {

OmCheckBoxAssortmentList::OmCheckBoxAssortmentList(OmCheckBoxAssortmentView *view)
    : m_view(view)
{}

OmCheckBoxAssortmentList::OmCheckBoxAssortmentList(const OmCheckBoxAssortmentList &other) = default;

OmCheckBoxAssortmentList &
OmCheckBoxAssortmentList::operator=(const OmCheckBoxAssortmentList &other) = default;

OmCheckBoxAssortmentList::~OmCheckBoxAssortmentList() = default;

void OmCheckBoxAssortmentList::append(QString text, bool value, QColor color, QVariant data)
{
    append(new OmCheckBoxAssortmentItem(std::move(text), value, color, std::move(data)));
}

void OmCheckBoxAssortmentList::prepend(QString text, bool value, QColor color, QVariant data)
{
    prepend(new OmCheckBoxAssortmentItem(std::move(text), value, color, std::move(data)));
}

void OmCheckBoxAssortmentList::insert(int i, QString text, bool value, QColor color, QVariant data)
{
    insert(i, new OmCheckBoxAssortmentItem(std::move(text), value, color, std::move(data)));
}

void OmCheckBoxAssortmentList::Override_ChangesHappened()
{
    if (m_view)
        m_view->refreshWidget();
}

bool OmCheckBoxAssortmentList::Override_BeforeItemAdded(OmCheckBoxAssortmentItem *&item)
{
    if (!item)
        return false;
    if (item->m_view && item->m_view != m_view)
        item->m_view->items().removeAll(item);
    item->m_view = m_view;
    item->setParent(m_view);
    return true;
}

} // namespace ombrin
