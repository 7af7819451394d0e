#pragma once

#include "views/ZebraLines.h"

#include <ombrin/OmScribbledZebraItemList.h>
#include <ombrin/OmScribbledZebraPoleList.h>

#include <QtCore/QPointer>
#include <QtCore/QRect>
#include <QtCore/QSize>
#include <QtWidgets/QGraphicsScene>

#include <set>
#include <unordered_map>
#include <utility>
#include <vector>

namespace ombrin {

/// Makes a graphics item for each item of a zebra view, and puts it in its place.
///
/// The list of items notes what changes, so that a layout need not look at the rest. The view keeps
/// a shared pointer while it lets items be laid out: these are a host's, and may delete the view.
class ZebraLayout
{
public:
    using Item = OmScribbledZebraItemBase;

    ZebraLayout(QGraphicsScene *scene, const OmScribbledZebraItemList &items,
                const OmScribbledZebraPoleList &poles);

    /// \a item is about to be added, or was changed.
    void noteChange(Item *item);
    /// \a item leaves the list, or is being destroyed: deletes its graphics item.
    void forget(Item *item);
    /// Whether something was noted since the last layout.
    bool hasNotes() const { return m_hasNotes; }

    /// Lays out all items of the list, and drops all others.
    bool layOutAll(const QSize &viewport, int minimumLineHeight);
    /// Lays out what was noted, or all items if they have not been laid out for this viewport and
    /// minimum. Like layOutAll(), tells whether lines became higher or lower.
    bool layOutChanges(const QSize &viewport, int minimumLineHeight);

    /// The viewport and all that is shown beyond it, except at its left.
    QRect bounds() const;
    const ZebraLines &lines() const { return m_lines; }

private:
    struct Entry
    {
        QGraphicsItem *sceneItem = nullptr;
        int row = -1; // as counted in m_lines and m_rows
        int height = 0;
        QPoint place;
        bool isChanged = false;
        bool isShown = false;
        int shownRow = 0; // as counted in m_shownRows
        int rightEnd = 0; // as counted in m_rightEnds; 0 if it is not
        quint32 pass = 0;
    };

    struct Noted
    {
        Item *item;
        Entry *entry;
    };

    Entry *find(Item *item);
    Entry *current(const Noted &noted);
    void noteAll();
    void dropOthers();
    bool layOutNoted();
    void count(Item *item, Entry *entry);
    void uncount(Item *item, const Entry &entry);
    std::vector<Item *> itemsFrom(int row) const;
    void show(const Noted &noted);
    bool create(const Noted &noted);
    void locate(const Item &item, Entry *entry);
    void unlocate(const Entry &entry);
    static void apply(const Entry &entry);

    QPointer<QGraphicsScene> m_scene;
    const OmScribbledZebraItemList &m_items;
    const OmScribbledZebraPoleList &m_poles;
    QSize m_viewport;
    int m_minimumLineHeight = 0; // of the last layout
    quint32 m_pass = 0;
    bool m_hasNotes = false;
    std::unordered_map<Item *, Entry> m_entries;
    std::vector<Noted> m_changed;
    int m_removals = 0; // of entries, during the layout
    ZebraLines m_lines;
    std::set<std::pair<int, Item *>> m_rows; // the items that are in a line
    CountedSet m_shownRows;
    CountedSet m_rightEnds; // of shown items on poles at the left
};

} // namespace ombrin
