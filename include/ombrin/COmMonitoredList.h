#pragma once

#include <ombrin/COmMonitoredListData.h>
#include <ombrin/COmMonitoredListIterator.h>

#include <QtCore/QSet>

#include <algorithm>
#include <cstddef>
#include <functional>
#include <limits>
#include <list>
#include <new>
#include <type_traits>
#include <typeinfo>

/// A list of pointers that reports every change through hooks.
///
/// It has the interface of QList and its value semantics: a copy shares the elements until one of
/// the two is changed. \a T is a pointer type; the list never deletes what its elements point to.
/// Derive from it to watch, refuse or replace what goes in and out:
///
/// \code
/// class Playlist : public COmMonitoredList<Song *>
/// {
/// protected:
///     bool Override_BeforeItemAdded(Song *&song) override { return song->isPlayable(); }
///     void Override_ChangesHappened() override { m_window->refresh(); }
/// };
/// \endcode
///
/// **Hooks.** The hooks before a change get the element and may refuse it by returning false, which
/// leaves the list as it is; the hooks after it see what happened. Override_ChangesHappened()
/// follows each operation that changed something: clear(), erase() of a range, assignment and
/// appending a list are one operation each, however many elements they add and remove one by one.
/// IgnoreChanges() silences it for a while. move() and swap() call no other hook.
///
/// The hooks of added elements get a reference to the argument of the operation itself: what
/// Override_BeforeItemAdded() assigns to it is stored, and seen by the caller in a variable of its
/// own. A hook never reaches into a list that way: for an element that lives in this list, and for
/// those of a list that is appended or assigned, it gets a copy.
///
/// An element assigned through a non-const reference or iterator passes no hook.
///
/// **Hooks that change the list.** A hook may change the list, and delete what elements point to.
/// An operation looks again where its element is after the hook; when a hook has removed the
/// element itself, the operation ends without a further hook. Nothing of the list is touched after
/// Override_ChangesHappened(), which may destroy it.
///
/// **Copies** have the elements but none of the hooks, also those of a derived class: the results
/// of mid(), operator+() and fromStdList() are plain lists. Assignment keeps the hooks of the list
/// assigned to and passes each element through them, so it shares nothing.
///
/// **Bad indexes.** value() answers null or the given default. at(), the index operators, first()
/// and last() need an element that exists. Other operations do nothing, or return null, when there
/// is no such element; insert() takes the nearer end.
///
/// Copies that share their elements may live in different threads; one list belongs to one thread
/// at a time.
///
/// \ingroup views
template <typename T>
class COmMonitoredList
{
    static_assert(std::is_pointer_v<T> && sizeof(T) == sizeof(void *),
                  "COmMonitoredList holds pointers");

public:
    /// The types that Qt's and the standard library's containers have.
    using iterator = COmMonitoredListIterator<T>;
    using const_iterator = COmMonitoredListIterator<const T>;
    using Iterator = iterator;
    using ConstIterator = const_iterator;
    using value_type = T;
    using pointer = T *;
    using const_pointer = const T *;
    using reference = T &;
    using const_reference = const T &;
    using size_type = int;
    using difference_type = std::ptrdiff_t;

protected:
    /// The list was changed.
    virtual void Override_ChangesHappened() {}
    /// \a item is about to be added, unless the hook returns false; what it assigns to \a item is
    /// added instead.
    virtual bool Override_BeforeItemAdded(T &item);
    /// The element \a item is about to be removed, unless the hook returns false. \a item is a
    /// copy, which Override_AfterItemDeleted() and the results of takeAt() see.
    virtual bool Override_BeforeItemDeleted(T &item);
    /// \a item was added.
    virtual void Override_AfterItemAdded(T &item);
    /// \a item was removed.
    virtual void Override_AfterItemDeleted(T &item);

public:
    /// Touches nothing that elements point to, and calls no hook.
    virtual ~COmMonitoredList() = default;

    /// An empty list.
    COmMonitoredList() = default;
    /// The elements of \a other, without its hooks and whatever they suppress.
    COmMonitoredList(const COmMonitoredList &other);
    /// Removes all elements and appends those of \a other; does nothing when both share them.
    COmMonitoredList &operator=(const COmMonitoredList &other);

    /// \name Size and tests
    /// \{
    /// How many elements there are, or whether there is none.
    int size() const { return d.size(); }
    int count() const { return size(); }
    bool isEmpty() const { return size() == 0; }
    bool empty() const { return isEmpty(); }

    /// How many elements equal \a item, or whether one does.
    int count(const T &item) const;
    bool contains(const T &item) const { return indexOf(item) >= 0; }
    /// The first index of \a item at or after \a from, or -1. A negative \a from counts from the
    /// end, -1 being the last element.
    int indexOf(const T &item, int from = 0) const;
    /// The last index of \a item at or before \a from, or -1. A negative \a from counts from the
    /// end, one past it means the last element.
    int lastIndexOf(const T &item, int from = -1) const;
    /// Whether both lists hold equal elements in the same order.
    bool operator==(const COmMonitoredList &other) const;
    bool operator!=(const COmMonitoredList &other) const { return !(*this == other); }
    /// \}

    /// \name Elements
    /// \{
    /// The element at \a i, at the front or at the back, which must exist. What is assigned to it
    /// passes no hook.
    const T &at(int i) const;
    const T &operator[](int i) const { return at(i); }
    T &operator[](int i);
    const T &first() const { return at(0); }
    T &first() { return (*this)[0]; }
    const T &front() const { return first(); }
    T &front() { return first(); }
    const T &last() const { return at(size() - 1); }
    T &last() { return (*this)[size() - 1]; }
    const T &back() const { return last(); }
    T &back() { return last(); }
    /// The element at \a i, or null or \a defaultValue where there is none.
    T value(int i) const { return value(i, nullptr); }
    T value(int i, const T &defaultValue) const { return isIndex(i) ? nodes()[i] : defaultValue; }
    /// \}

    /// \name Iteration
    /// \{
    /// The iterators of the first element and of the place behind the last.
    iterator begin();
    iterator end();
    const_iterator begin() const { return constBegin(); }
    const_iterator end() const { return constEnd(); }
    const_iterator constBegin() const { return const_iterator(nodes()); }
    const_iterator constEnd() const { return const_iterator(nodes() + size()); }
    /// The index of the element \a it points to, or -1 if that is none of this list: the end, or an
    /// iterator from before the list was detached.
    int IndexOfIterator(iterator it) { return IndexOfIterator(const_iterator(it)); }
    int IndexOfIterator(const_iterator it);
    /// \}

    /// \name Adding
    /// \{
    /// Adds \a item at the end, at the front, or before the element at \a i.
    void append(const T &item);
    void push_back(const T &item) { append(item); }
    COmMonitoredList &operator+=(const T &item);
    COmMonitoredList &operator<<(const T &item) { return *this += item; }
    void prepend(const T &item);
    void push_front(const T &item) { prepend(item); }
    void insert(int i, const T &item);
    /// Returns the place of the new element, or \a before when a hook refused it.
    iterator insert(iterator before, const T &item);
    /// Appends all elements of \a other.
    COmMonitoredList &operator+=(const COmMonitoredList &other);
    COmMonitoredList &operator<<(const COmMonitoredList &other) { return *this += other; }
    /// \}

    /// \name Removing
    /// \{
    /// Removes the element at \a i.
    void removeAt(int i);
    /// Removes the element and returns it, as the hooks left it; also when they refused.
    T takeAt(int i);
    /// Returns the place of the element that followed, or \a it when a hook refused.
    iterator erase(iterator it);
    /// Removes from the back to the front; returns the place of the element \a last pointed to.
    iterator erase(iterator first, iterator last);
    /// Removes the first or the last element.
    void removeFirst() { removeAt(0); }
    void pop_front() { removeFirst(); }
    void removeLast() { removeAt(size() - 1); }
    void pop_back() { removeLast(); }
    /// Removes the element and returns it, also when the hooks refused or altered their copy.
    T takeFirst() { return takeAsIs(0); }
    T takeLast() { return takeAsIs(size() - 1); }
    /// Removes all elements equal to \a item, from the front, and returns how many.
    int removeAll(const T &item);
    /// Removes the elements one by one, from the back; those that the hooks refuse to let go stay.
    void clear();
    /// \}

    /// \name Changing places
    /// \{
    /// Puts \a item in the place of the element at \a i. Asks the hooks of adding first, then those
    /// of removing.
    void replace(int i, const T &item);
    /// Moves one element, or exchanges two. No hook but Override_ChangesHappened() is called.
    void move(int from, int to);
    void swap(int i, int j);
    /// \}

    /// \name Copies
    /// \{
    /// The elements of both lists, without hooks.
    COmMonitoredList operator+(const COmMonitoredList &other) const;
    /// The \a length elements from \a pos on, as far as they exist; all of them if \a length is
    /// negative.
    COmMonitoredList mid(int pos, int length = -1) const;
    /// The elements as a container of another kind, and the way back.
    QSet<T> toSet() const;
    std::list<T> toStdList() const { return std::list<T>(constBegin(), constEnd()); }
    static COmMonitoredList fromStdList(const std::list<T> &list);
    /// \}

    /// \name Sharing
    /// \{
    /// Gives the list elements of its own, if it shares them with a copy.
    void detach();
    /// Whether the list shares its elements with no copy.
    bool isDetached() const { return d.isDetached(); }
    /// Whether copies may share the elements with this list until one of them is changed.
    void setSharable(bool sharable);
    /// \}

protected:
    /// Calls nest: while there were more with true than with false, Override_ChangesHappened() is
    /// not called, and what happened meanwhile is not made up for. One false too many is ignored.
    void IgnoreChanges(bool ignore);

private:
    int m_changesIgnored = 0;

protected:
    /// While not 0, the hooks of adding are not called. Nothing but derived classes changes it.
    int m_addHooksSuppressed = 0;
    /// While not 0, the hooks of removing are not called. Nothing but derived classes changes it.
    int m_deleteHooksSuppressed = 0;

private:
    T *nodes() const { return reinterpret_cast<T *>(d.begin()); }
    bool isIndex(int i) const { return i >= 0 && i < size(); }
    int indexInBlock(const T *node) const;
    int indexNear(const T &item, int i) const;

    template <typename Opener>
    void addAndNotify(const T &item, Opener open);
    template <typename Operation>
    auto withSafeArgument(const T &item, Operation operation);
    template <typename Opener>
    int add(T &item, Opener open);
    int removeNode(int i, T &item);
    void replaceNode(int i, T &item);
    T takeAsIs(int i);
    void appendAll(const COmMonitoredList &other);
    bool hasHooks() const;
    bool mayAdd(T &item);
    bool mayRemove(T &item);
    void tellAdded(T &item);
    void tellRemoved(T &item);
    void endBatch(bool changed);
    void notify();

    COmMonitoredListData d;
};

#include <ombrin/COmMonitoredListImpl.h>
