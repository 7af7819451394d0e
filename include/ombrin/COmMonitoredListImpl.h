#pragma once

#include <ombrin/COmMonitoredList.h>

/// \file
/// The functions of COmMonitoredList, which includes this file.

template <typename T>
bool COmMonitoredList<T>::Override_BeforeItemAdded(T &)
{
    return true;
}

template <typename T>
bool COmMonitoredList<T>::Override_BeforeItemDeleted(T &)
{
    return true;
}

template <typename T>
void COmMonitoredList<T>::Override_AfterItemAdded(T &)
{}

template <typename T>
void COmMonitoredList<T>::Override_AfterItemDeleted(T &)
{}

template <typename T>
COmMonitoredList<T>::COmMonitoredList(const COmMonitoredList &other)
    : d(other.d)
{
    if (!d.d->sharable)
        detach();
}

template <typename T>
COmMonitoredList<T> &COmMonitoredList<T>::operator=(const COmMonitoredList &other)
{
    if (d.d == other.d.d)
        return *this;
    const COmMonitoredList items(other); // which the hooks cannot change
    IgnoreChanges(true);
    const int oldSize = size();
    clear();
    const int keptSize = size();
    appendAll(items);
    endBatch(keptSize != oldSize || size() != keptSize);
    return *this;
}

// Size and tests

template <typename T>
int COmMonitoredList<T>::count(const T &item) const
{
    return static_cast<int>(std::count(nodes(), nodes() + size(), item));
}

template <typename T>
int COmMonitoredList<T>::indexOf(const T &item, int from) const
{
    const int start = from < 0 ? std::max(from + size(), 0) : from;
    if (start >= size())
        return -1;
    const T *const stop = nodes() + size();
    const T *const found = std::find(static_cast<const T *>(nodes() + start), stop, item);
    return found == stop ? -1 : static_cast<int>(found - nodes());
}

template <typename T>
int COmMonitoredList<T>::lastIndexOf(const T &item, int from) const
{
    int i = from < 0 ? from + size() : std::min(from, size() - 1);
    while (i >= 0 && nodes()[i] != item)
        --i;
    return std::max(i, -1);
}

template <typename T>
bool COmMonitoredList<T>::operator==(const COmMonitoredList &other) const
{
    return size() == other.size()
           && (d.d == other.d.d || std::equal(nodes(), nodes() + size(), other.nodes()));
}

// Elements and iteration

template <typename T>
const T &COmMonitoredList<T>::at(int i) const
{
    Q_ASSERT_X(isIndex(i), "COmMonitoredList", "index out of range");
    return nodes()[i];
}

template <typename T>
T &COmMonitoredList<T>::operator[](int i)
{
    Q_ASSERT_X(isIndex(i), "COmMonitoredList", "index out of range");
    detach();
    return nodes()[i];
}

template <typename T>
typename COmMonitoredList<T>::iterator COmMonitoredList<T>::begin()
{
    detach();
    return iterator(nodes());
}

template <typename T>
typename COmMonitoredList<T>::iterator COmMonitoredList<T>::end()
{
    detach();
    return iterator(nodes() + size());
}

template <typename T>
int COmMonitoredList<T>::IndexOfIterator(const_iterator it)
{
    detach();
    return indexInBlock(it.i);
}

// Adding

template <typename T>
void COmMonitoredList<T>::append(const T &item)
{
    addAndNotify(item, [this] { return d.append(); });
}

template <typename T>
void COmMonitoredList<T>::prepend(const T &item)
{
    addAndNotify(item, [this] { return d.prepend(); });
}

template <typename T>
void COmMonitoredList<T>::insert(int i, const T &item)
{
    addAndNotify(item, [this, i] { return d.insert(i); });
}

template <typename T>
typename COmMonitoredList<T>::iterator COmMonitoredList<T>::insert(iterator before, const T &item)
{
    const int i = before.i == nodes() + size() ? size() : indexInBlock(before.i);
    if (i < 0)
        return before;
    return withSafeArgument(item, [this, i, before](T &safe) {
        const int place = add(safe, [this, i] { return d.insert(i); });
        if (place < 0)
            return before;
        const iterator added = begin() + std::min(place, size());
        notify();
        return added;
    });
}

template <typename T>
COmMonitoredList<T> &COmMonitoredList<T>::operator+=(const T &item)
{
    append(item);
    return *this;
}

template <typename T>
COmMonitoredList<T> &COmMonitoredList<T>::operator+=(const COmMonitoredList &other)
{
    const COmMonitoredList items(other); // which the hooks cannot change
    IgnoreChanges(true);
    const int oldSize = size();
    appendAll(items);
    endBatch(size() != oldSize);
    return *this;
}

template <typename T>
void COmMonitoredList<T>::appendAll(const COmMonitoredList &other)
{
    for (T item : other)
        append(item);
}

template <typename T>
template <typename Opener>
void COmMonitoredList<T>::addAndNotify(const T &item, Opener open)
{
    if (!hasHooks()) {
        const T copy = item; // it may live in this list
        detach();
        new (open()) T(copy);
        return;
    }
    withSafeArgument(item, [this, open](T &safe) {
        if (add(safe, open) >= 0)
            notify();
    });
}

// Gives the operation the caller's own argument, through which a hook may answer, or a copy of it
// if it lives in this list, whose nodes move.
template <typename T>
template <typename Operation>
auto COmMonitoredList<T>::withSafeArgument(const T &item, Operation operation)
{
    if (indexInBlock(&item) < 0)
        return operation(const_cast<T &>(item));
    T copy = item;
    return operation(copy);
}

// Adds item, with the hooks around it, where open() opens a node. Returns its index, or -1 if a
// hook refused it.
template <typename T>
template <typename Opener>
int COmMonitoredList<T>::add(T &item, Opener open)
{
    if (!mayAdd(item))
        return -1;
    detach();
    const T *const node = new (open()) T(item);
    const int place = static_cast<int>(node - nodes());
    tellAdded(item);
    return place;
}

// Removing

template <typename T>
void COmMonitoredList<T>::removeAt(int i)
{
    if (!isIndex(i))
        return;
    if (!hasHooks()) {
        detach();
        d.remove(i);
        return;
    }
    T item = nodes()[i];
    if (removeNode(i, item) >= 0)
        notify();
}

template <typename T>
T COmMonitoredList<T>::takeAt(int i)
{
    if (!isIndex(i))
        return nullptr;
    detach();
    T item = nodes()[i];
    if (removeNode(i, item) >= 0)
        notify();
    return item;
}

template <typename T>
T COmMonitoredList<T>::takeAsIs(int i)
{
    if (!isIndex(i))
        return nullptr;
    detach();
    const T item = nodes()[i];
    removeAt(i);
    return item;
}

template <typename T>
typename COmMonitoredList<T>::iterator COmMonitoredList<T>::erase(iterator it)
{
    const int i = indexInBlock(it.i);
    if (i < 0)
        return it;
    T item = *it;
    const int removed = removeNode(i, item);
    if (removed < 0)
        return it;
    const iterator next = begin() + std::min(removed, size());
    notify();
    return next;
}

template <typename T>
typename COmMonitoredList<T>::iterator COmMonitoredList<T>::erase(iterator first, iterator last)
{
    const int oldSize = size();
    const int from = first.i == last.i ? -1 : indexInBlock(first.i);
    const int to = last.i == nodes() + oldSize ? oldSize : indexInBlock(last.i);
    if (from < 0 || to < 0)
        return begin() + (to < 0 ? oldSize : to);
    IgnoreChanges(true);
    for (int i = to - 1; i >= from; --i)
        removeAt(i);
    const iterator next = begin() + std::clamp(to - (oldSize - size()), 0, size());
    endBatch(size() != oldSize);
    return next;
}

template <typename T>
int COmMonitoredList<T>::removeAll(const T &item)
{
    detach();
    const T wanted = item; // the argument may live in this list
    int removedCount = 0;
    int i = indexOf(wanted);
    // Counted, as a hook may put back what was removed.
    for (int left = count(wanted); left > 0 && i >= 0; --left) {
        T removed = nodes()[i];
        const int place = removeNode(i, removed);
        if (place >= 0)
            ++removedCount;
        i = indexOf(wanted, place >= 0 ? place : i + 1);
    }
    if (removedCount > 0)
        notify();
    return removedCount;
}

template <typename T>
void COmMonitoredList<T>::clear()
{
    IgnoreChanges(true);
    const int oldSize = size();
    for (int i = oldSize - 1; i >= 0; --i)
        removeAt(i);
    endBatch(size() != oldSize);
}

// Removes the i-th element with the hooks around it, which get item, a copy of it. Returns where
// the element was, or -1 if it stayed or a hook has removed it.
template <typename T>
int COmMonitoredList<T>::removeNode(int i, T &item)
{
    const T element = nodes()[i];
    if (!mayRemove(item))
        return -1;
    const int place = indexNear(element, i);
    if (place < 0)
        return -1;
    detach();
    d.remove(place);
    tellRemoved(item);
    return place;
}

// Changing places

template <typename T>
void COmMonitoredList<T>::replace(int i, const T &item)
{
    withSafeArgument(item, [this, i](T &safe) { replaceNode(i, safe); });
}

template <typename T>
void COmMonitoredList<T>::replaceNode(int i, T &item)
{
    if (!isIndex(i))
        return;
    if (!mayAdd(item) || !isIndex(i))
        return;
    const T element = nodes()[i];
    T old = element;
    if (!mayRemove(old))
        return;
    const int place = indexNear(element, i);
    if (place < 0)
        return;
    detach();
    nodes()[place] = item;
    tellRemoved(old);
    tellAdded(item);
    notify();
}

template <typename T>
void COmMonitoredList<T>::move(int from, int to)
{
    detach();
    if (from == to || !isIndex(from) || !isIndex(to))
        return;
    d.move(from, to);
    notify();
}

template <typename T>
void COmMonitoredList<T>::swap(int i, int j)
{
    detach();
    if (!isIndex(i) || !isIndex(j))
        return;
    std::swap(nodes()[i], nodes()[j]);
    notify();
}

// Copies

template <typename T>
COmMonitoredList<T> COmMonitoredList<T>::operator+(const COmMonitoredList &other) const
{
    COmMonitoredList result(*this);
    result += other;
    return result;
}

template <typename T>
COmMonitoredList<T> COmMonitoredList<T>::mid(int pos, int length) const
{
    if (pos < 0) {
        // What would lie before the first element counts, but does not exist.
        length = length < 0 ? length : std::max(length + pos, 0);
        pos = 0;
    }
    pos = std::min(pos, size());
    if (length < 0 || length > size() - pos)
        length = size() - pos;
    if (length == size())
        return *this;
    COmMonitoredList result;
    for (int i = pos; i < pos + length; ++i)
        result.append(T(nodes()[i]));
    return result;
}

template <typename T>
QSet<T> COmMonitoredList<T>::toSet() const
{
    QSet<T> result;
    result.reserve(size());
    for (const T &item : *this)
        result.insert(item);
    return result;
}

template <typename T>
COmMonitoredList<T> COmMonitoredList<T>::fromStdList(const std::list<T> &list)
{
    COmMonitoredList result;
    for (T item : list)
        result.append(item);
    return result;
}

// Sharing

template <typename T>
void COmMonitoredList<T>::detach()
{
    if (!d.isDetached())
        COmMonitoredListData::freeBlock(d.detach());
}

template <typename T>
void COmMonitoredList<T>::setSharable(bool sharable)
{
    // The shared block of empty lists is sharable for ever, so it is not written to.
    if (sharable == static_cast<bool>(d.d->sharable))
        return;
    detach();
    d.d->sharable = sharable;
}

// Notifying

template <typename T>
void COmMonitoredList<T>::IgnoreChanges(bool ignore)
{
    m_changesIgnored = std::max(m_changesIgnored + (ignore ? 1 : -1), 0);
}

template <typename T>
void COmMonitoredList<T>::endBatch(bool changed)
{
    IgnoreChanges(false);
    if (changed)
        notify();
}

// Always the last step of an operation: the hook may destroy the list.
template <typename T>
void COmMonitoredList<T>::notify()
{
    if (m_changesIgnored == 0)
        Override_ChangesHappened();
}

// Whether there is a hook that does anything: one that does not is not worth its call.
template <typename T>
bool COmMonitoredList<T>::hasHooks() const
{
    return &typeid(*this) != &typeid(COmMonitoredList);
}

template <typename T>
bool COmMonitoredList<T>::mayAdd(T &item)
{
    return m_addHooksSuppressed != 0 || Override_BeforeItemAdded(item);
}

template <typename T>
bool COmMonitoredList<T>::mayRemove(T &item)
{
    return m_deleteHooksSuppressed != 0 || Override_BeforeItemDeleted(item);
}

template <typename T>
void COmMonitoredList<T>::tellAdded(T &item)
{
    if (m_addHooksSuppressed == 0)
        Override_AfterItemAdded(item);
}

template <typename T>
void COmMonitoredList<T>::tellRemoved(T &item)
{
    if (m_deleteHooksSuppressed == 0)
        Override_AfterItemDeleted(item);
}

// The index of the element at the address node, or -1 if that is no element of this list.
template <typename T>
int COmMonitoredList<T>::indexInBlock(const T *node) const
{
    const std::less<const T *> before;
    if (before(node, nodes()) || !before(node, nodes() + size()))
        return -1;
    return static_cast<int>(node - nodes());
}

// Where item is: still at i, or elsewhere after a hook has changed the list; -1 if nowhere.
template <typename T>
int COmMonitoredList<T>::indexNear(const T &item, int i) const
{
    return isIndex(i) && nodes()[i] == item ? i : indexOf(item);
}
