#pragma once

#include <ombrin/COmMonitoredList.h>
#include <ombrin/OmScribbledZebraItemBase.h>

namespace ombrin {
class ZebraLayout;
}

// A Windows library keeps no inline functions for others, who so make the class for themselves.
#if !defined(Q_OS_WIN) || defined(OMBRIN_BUILD_GUI)
extern template class OMBRIN_GUI_EXPORT COmMonitoredList<OmScribbledZebraItemBase *>;
#endif

/// The items of an OmScribbledZebraView, in an order that means nothing to the eye.
///
/// \code
/// auto *name = new OmScribbledZebraItemText(0, 0, true, tr("Name"), nullptr);
/// view->items() << name;
/// delete view->items().takeAt(0);
/// \endcode
///
/// An added item becomes a child of the list, and stays one when it is removed. An item that is
/// deleted leaves the list. An item belongs into one list, once: null and what is in the list
/// already are not added.
///
/// \ingroup views
class OMBRIN_GUI_EXPORT OmScribbledZebraItemList
    : public QObject,
      public COmMonitoredList<OmScribbledZebraItemBase *>
{
    Q_OBJECT

public:
    explicit OmScribbledZebraItemList(QObject *parent);
    ~OmScribbledZebraItemList() override;

    using COmMonitoredList::operator=;

Q_SIGNALS:
    /// The list or one of its items was changed; once for each operation. A slot may delete the
    /// list.
    void signalOnChanged();

protected:
    void Override_ChangesHappened() override;
    bool Override_BeforeItemAdded(OmScribbledZebraItemBase *&item) override;
    bool Override_BeforeItemDeleted(OmScribbledZebraItemBase *&item) override;

private Q_SLOTS:
    void slotOnItemChanged();

private:
    ombrin::ZebraLayout *viewLayout() const;
    bool disconnectItem(OmScribbledZebraItemBase *item);
    void noteChange(OmScribbledZebraItemBase *item);
    void onItemDestroyed(OmScribbledZebraItemBase *item);
};
