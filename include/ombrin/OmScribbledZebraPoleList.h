#pragma once

#include <ombrin/COmMonitoredList.h>
#include <ombrin/OmScribbledZebraPole.h>

// A Windows library keeps no inline functions for others, who so make the class for themselves.
#if !defined(Q_OS_WIN) || defined(OMBRIN_BUILD_GUI)
extern template class OMBRIN_GUI_EXPORT COmMonitoredList<OmScribbledZebraPole *>;
#endif

/// The poles of an OmScribbledZebraView. The index of a pole is the column of its items.
///
/// \code
/// view->poles().append(10, true);   // column 0: 10 pixels from the left edge
/// view->poles().append(10, false);  // column 1: 10 pixels from the right edge
/// delete view->poles().takeAt(1);
/// \endcode
///
/// An added pole becomes a child of the list, and stays one when it is removed. A pole that is
/// deleted leaves the list. A pole belongs into one list, once: null and what is in the list
/// already are not added.
///
/// \ingroup views
class OMBRIN_GUI_EXPORT OmScribbledZebraPoleList : public QObject,
                                                   public COmMonitoredList<OmScribbledZebraPole *>
{
    Q_OBJECT

public:
    explicit OmScribbledZebraPoleList(QObject *parent);
    ~OmScribbledZebraPoleList() override;

    using COmMonitoredList::append;
    using COmMonitoredList::operator=;
    /// Appends a new pole; see OmScribbledZebraPole for its values.
    void append(int indent, bool isAlignedLeftOrRight);

Q_SIGNALS:
    /// The list or one of its poles was changed; once for each operation. A slot may delete the
    /// list.
    void signalOnChanged();

protected:
    void Override_ChangesHappened() override;
    bool Override_BeforeItemAdded(OmScribbledZebraPole *&item) override;
    bool Override_BeforeItemDeleted(OmScribbledZebraPole *&item) override;

private Q_SLOTS:
    void slotOnItemChanged();

private:
    void onItemDestroyed(QObject *object);
};
