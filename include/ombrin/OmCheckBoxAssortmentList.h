#pragma once

#include <ombrin/COmMonitoredList.h>
#include <ombrin/OmCheckBoxAssortmentItem.h>
#include <ombrin/OmGlobal.h>

extern template class OMBRIN_GUI_EXPORT COmMonitoredList<ombrin::OmCheckBoxAssortmentItem *>;

namespace ombrin {

/// The items of an OmCheckBoxAssortmentView, which is refreshed whenever the list changes.
///
/// \code
/// view->items().append(tr("Friends"), true, Qt::darkGreen, QVariant());
/// view->items().removeFirst();
/// \endcode
///
/// An item that is added becomes a child of the view, which deletes it with itself, and leaves the
/// list of another view it is in. One that is removed stays a child of the view: delete it, or add
/// it again. Null is not added. Only the list that belongs to the view notices when an item is
/// deleted; do not keep copies of the list longer than its items.
///
/// \ingroup views
class OMBRIN_GUI_EXPORT OmCheckBoxAssortmentList
    : public COmMonitoredList<OmCheckBoxAssortmentItem *>
{
public:
    /// An empty list for \a view, which may be null: then the items stay as they are.
    explicit OmCheckBoxAssortmentList(OmCheckBoxAssortmentView *view);
    OmCheckBoxAssortmentList(const OmCheckBoxAssortmentList &other);
    /// Adds the items of \a other in place of its own to this list's view, and then belongs to the
    /// view of \a other.
    OmCheckBoxAssortmentList &operator=(const OmCheckBoxAssortmentList &other);
    ~OmCheckBoxAssortmentList() override;

    using COmMonitoredList::append;
    using COmMonitoredList::insert;
    using COmMonitoredList::prepend;

    /// \name New items
    /// \{
    /// Makes an item of these values (see OmCheckBoxAssortmentItem) and adds it; \c i is the index
    /// before which, and one out of range means the nearer end.
    void append(QString text, bool value, QColor color, QVariant data);
    void prepend(QString text, bool value, QColor color, QVariant data);
    void insert(int i, QString text, bool value, QColor color, QVariant data);
    /// \}

protected:
    void Override_ChangesHappened() override;
    bool Override_BeforeItemAdded(OmCheckBoxAssortmentItem *&item) override;

private:
    QPointer<OmCheckBoxAssortmentView> m_view;
};

} // namespace ombrin
