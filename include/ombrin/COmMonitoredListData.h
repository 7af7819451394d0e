#pragma once

#include <ombrin/OmGlobal.h>

#include <QtCore/QAtomicInt>

/// The untyped storage behind COmMonitoredList: a handle to a block of nodes, each as big as a
/// pointer, that handles share until one of them writes.
///
/// Not for direct use; COmMonitoredList calls detach() before it writes.
///
/// \code
/// COmMonitoredListData storage;
/// COmMonitoredListData::freeBlock(storage.detach());
/// *storage.append() = object;
/// \endcode
///
/// A block counts its handles with atomic operations, so handles to one block may live in different
/// threads; a single handle belongs to one thread at a time. Room grows geometrically at both ends:
/// adding and removing nodes there takes constant time on average, in the middle at most the time
/// to move the shorter of the two parts, or the longer one where only that has room beside it.
///
/// All handles of empty lists that were never written to point to #shared_null.
class OMBRIN_CORE_EXPORT COmMonitoredListData
{
public:
    /// The header of a block; its nodes lie in memory right behind it, aligned so that processors
    /// read two at a time.
    struct alignas(2 * sizeof(void *)) Data
    {
        void **nodes() { return reinterpret_cast<void **>(this + 1); }

        QAtomicInt ref;    ///< How many handles point to the block.
        int alloc;         ///< How many nodes there is room for.
        int begin;         ///< The number of the first node in use.
        int end;           ///< The number behind that of the last node in use.
        uint sharable : 1; ///< 0: copies of the list take a block of their own at once.
    };

    COmMonitoredListData() noexcept
        : d(&shared_null)
    {
        d->ref.ref();
    }
    COmMonitoredListData(const COmMonitoredListData &other) noexcept
        : d(other.d)
    {
        d->ref.ref();
    }
    COmMonitoredListData &operator=(const COmMonitoredListData &) = delete;
    ~COmMonitoredListData()
    {
        if (!d->ref.deref())
            freeBlock(d);
    }

    /// Whether no other handle points to the block.
    bool isDetached() const { return d->ref.loadAcquire() == 1; }
    /// Gives this handle a copy of the block that no other handle points to.
    ///
    /// Returns the old block if this was the last handle that pointed to it, to be freed with
    /// freeBlock(), else null.
    Data *detach();
    /// Frees a block that no handle points to any more. Null is ignored.
    static void freeBlock(Data *block);

    int size() const { return d->end - d->begin; }
    /// The address of the first node, and that behind the last one.
    void **begin() const { return d->nodes() + d->begin; }
    void **end() const { return d->nodes() + d->end; }

    /// \name Changing the nodes
    /// The block must be detached. Addresses of nodes are valid until the next change; a new node
    /// holds nothing until the caller writes it.
    /// \{

    /// Opens a node behind the last one and returns its address.
    void **append()
    {
        if (d->end == d->alloc)
            makeRoomBehind();
        return d->nodes() + d->end++;
    }
    /// Opens a node before the first one and returns its address.
    void **prepend()
    {
        if (d->begin == 0)
            makeRoomBefore();
        return d->nodes() + --d->begin;
    }
    /// Opens a node before the \a i-th and returns its address. A number out of range means the
    /// nearer end.
    void **insert(int i);
    /// Closes the \a i-th node, which must exist.
    void remove(int i)
    {
        if (i == size() - 1)
            --d->end;
        else if (i == 0)
            ++d->begin;
        else
            removeInside(i);
    }
    /// Moves the \a from-th node so that it becomes the \a to-th; both must exist.
    void move(int from, int to);
    /// Closes the node at the address \a node; returns the address of the one that follows.
    void **erase(void **node);
    /// \}

    /// The block of all lists that were never written to. It is not to be changed.
    static Data shared_null;

    Data *d; ///< The block; never null.

private:
    void removeInside(int i);
    void makeRoomBefore();
    void makeRoomBehind();
    void enlarge();
    void slideTo(int begin);
};
