#include "views/ZebraLayout.h"

#include <QtWidgets/QGraphicsItem>

#include <algorithm>
#include <memory>

namespace ombrin {

namespace {

int bounded(qint64 coordinate)
{
    constexpr qint64 limit = ZebraLines::kMaxCoordinate;
    return static_cast<int>(std::clamp(coordinate, -limit, limit));
}

} // namespace

ZebraLayout::ZebraLayout(QGraphicsScene *scene, const OmScribbledZebraItemList &items,
                         const OmScribbledZebraPoleList &poles)
    : m_scene(scene)
    , m_items(items)
    , m_poles(poles)
{}

ZebraLayout::Entry *ZebraLayout::find(Item *item)
{
    const auto found = m_entries.find(item);
    return found == m_entries.end() ? nullptr : &found->second;
}

// The entry of an item that was noted before the layout, or null when it has left since.
ZebraLayout::Entry *ZebraLayout::current(const Noted &noted)
{
    if (!m_scene)
        return nullptr;
    return m_removals == 0 ? noted.entry : find(noted.item);
}

void ZebraLayout::noteChange(Item *item)
{
    m_hasNotes = true;
    Entry &entry = m_entries[item];
    if (!entry.isChanged)
        m_changed.push_back({item, &entry});
    entry.isChanged = true;
}

void ZebraLayout::forget(Item *item)
{
    m_hasNotes = true;
    const auto found = m_entries.find(item);
    if (found == m_entries.end())
        return;
    const Entry entry = found->second;
    m_entries.erase(found);
    ++m_removals;
    uncount(item, entry);
    unlocate(entry);
    if (entry.isChanged) {
        // Backwards, as lists are cleared from the end.
        const auto noted = std::find_if(m_changed.rbegin(), m_changed.rend(),
                                        [item](const Noted &n) { return n.item == item; });
        if (noted != m_changed.rend())
            m_changed.erase(std::next(noted).base());
    }
    delete entry.sceneItem;
}

bool ZebraLayout::layOutAll(const QSize &viewport, int minimumLineHeight)
{
    m_viewport = viewport;
    const bool linesMove = m_minimumLineHeight != minimumLineHeight;
    if (linesMove) {
        m_minimumLineHeight = minimumLineHeight;
        m_lines.reset(minimumLineHeight);
        for (const auto &[item, entry] : m_entries)
            m_lines.add(entry.row, entry.height);
    }
    noteAll();
    return layOutNoted() || linesMove;
}

bool ZebraLayout::layOutChanges(const QSize &viewport, int minimumLineHeight)
{
    if (viewport != m_viewport || minimumLineHeight != m_minimumLineHeight)
        return layOutAll(viewport, minimumLineHeight);
    return layOutNoted();
}

void ZebraLayout::noteAll()
{
    ++m_pass;
    m_changed.clear();
    for (Item *const item : m_items) {
        if (!item)
            continue;
        Entry &entry = m_entries[item];
        entry.isChanged = true;
        if (entry.pass != m_pass)
            m_changed.push_back({item, &entry});
        entry.pass = m_pass;
    }
    if (m_entries.size() != m_changed.size())
        dropOthers();
}

void ZebraLayout::dropOthers()
{
    std::vector<Item *> others;
    for (const auto &[item, entry] : m_entries) {
        if (entry.pass != m_pass)
            others.push_back(item);
    }
    for (Item *const item : others)
        forget(item);
}

bool ZebraLayout::layOutNoted()
{
    m_hasNotes = false;
    const std::vector<Noted> changed = std::exchange(m_changed, {});
    for (const Noted &noted : changed)
        count(noted.item, noted.entry);
    const int firstMoved = m_lines.settle();
    const std::vector<Item *> moved = itemsFrom(firstMoved);

    // From here on a host may do anything in the functions of its items.
    m_removals = 0;
    for (const Noted &noted : changed)
        show(noted);
    for (Item *const item : moved) {
        Entry *const entry = m_scene ? find(item) : nullptr;
        if (!entry || !entry->sceneItem)
            continue;
        locate(*item, entry);
        apply(*entry);
    }
    return firstMoved != ZebraLines::kNoRow;
}

// Enters row and height of the item into the lines.
void ZebraLayout::count(Item *item, Entry *entry)
{
    entry->isChanged = false;
    const int row = std::max(item->row(), -1);
    const int height = item->size().height();
    if (entry->row == row && entry->height == height)
        return;
    uncount(item, *entry);
    entry->row = row;
    entry->height = height;
    if (row >= 0)
        m_rows.emplace_hint(m_rows.end(), row, item); // where rows mostly come
    m_lines.add(row, height);
}

void ZebraLayout::uncount(Item *item, const Entry &entry)
{
    if (entry.row < 0)
        return;
    m_rows.erase({entry.row, item});
    m_lines.remove(entry.row, entry.height);
}

std::vector<ZebraLayout::Item *> ZebraLayout::itemsFrom(int row) const
{
    std::vector<Item *> items;
    for (auto it = m_rows.lower_bound({row, nullptr}); it != m_rows.end(); ++it)
        items.push_back(it->second);
    return items;
}

void ZebraLayout::show(const Noted &noted)
{
    Entry *entry = current(noted);
    if (!entry)
        return;
    if (entry->sceneItem)
        locate(*noted.item, entry);
    else if (!create(noted))
        return;
    entry = current(noted);
    if (!entry || !entry->sceneItem)
        return;
    noted.item->AdjustGraphicsItem(entry->sceneItem);
    entry = current(noted);
    if (entry && entry->sceneItem)
        apply(*entry);
}

bool ZebraLayout::create(const Noted &noted)
{
    std::unique_ptr<QGraphicsItem> created(noted.item->CreateGraphicsItem());
    Entry *const entry = current(noted);
    if (!entry || entry->sceneItem || !created)
        return false;
    entry->sceneItem = created.release();
    locate(*noted.item, entry);
    apply(*entry); // which is cheaper outside of the scene
    m_scene->addItem(entry->sceneItem);
    return true;
}

// Finds the item's place, and what it makes the scene extend to.
void ZebraLayout::locate(const Item &item, Entry *entry)
{
    unlocate(*entry);
    const OmScribbledZebraPole *const pole = m_poles.value(item.column());
    entry->isShown = entry->row >= 0 && pole;
    if (!entry->isShown)
        return;
    const qint64 indent = pole->indent();
    const qint64 poleX = pole->isAlignedLeftOrRight() ? indent : m_viewport.width() - indent;
    const qint64 width = item.size().width();
    const qint64 left = item.isAlignedLeftOrRight() ? poleX : poleX - width;
    const auto [top, bottom] = m_lines.span(entry->row);
    const qint64 y = top + (qint64(bottom) - top + 1 - entry->height) / 2;
    entry->place = QPoint(bounded(left), bounded(y));

    entry->shownRow = entry->row;
    m_shownRows.add(entry->shownRow);
    entry->rightEnd = pole->isAlignedLeftOrRight() ? std::max(bounded(left + width), 0) : 0;
    if (entry->rightEnd > 0)
        m_rightEnds.add(entry->rightEnd);
}

void ZebraLayout::unlocate(const Entry &entry)
{
    if (!entry.isShown)
        return;
    m_shownRows.remove(entry.shownRow);
    if (entry.rightEnd > 0)
        m_rightEnds.remove(entry.rightEnd);
}

void ZebraLayout::apply(const Entry &entry)
{
    if (entry.sceneItem->isVisible() != entry.isShown)
        entry.sceneItem->setVisible(entry.isShown);
    if (entry.isShown && entry.sceneItem->pos() != entry.place)
        entry.sceneItem->setPos(entry.place);
}

QRect ZebraLayout::bounds() const
{
    int right = m_viewport.width();
    if (!m_rightEnds.isEmpty())
        right = std::max(right, m_rightEnds.largest());
    int bottom = m_viewport.height();
    if (!m_shownRows.isEmpty())
        bottom = std::max(bottom, m_lines.span(m_shownRows.largest()).bottom);
    return {0, 0, right, bottom};
}

} // namespace ombrin
