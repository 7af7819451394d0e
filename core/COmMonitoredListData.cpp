#include <ombrin/COmMonitoredListData.h>

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <new>

namespace {

using Data = COmMonitoredListData::Data;

constexpr std::size_t kNodeSize = sizeof(void *);
constexpr int kSmallestCapacity = 8;
constexpr int kLargestCapacity = static_cast<int>(std::min<std::size_t>(
        std::numeric_limits<int>::max(),
        (std::numeric_limits<std::ptrdiff_t>::max() - sizeof(Data)) / kNodeSize));

constexpr std::size_t bytesOf(int nodes)
{
    return static_cast<std::size_t>(nodes) * kNodeSize;
}

// Twice the nodes in use, so that each of them is moved a constant number of times on average.
int capacityFor(int nodes)
{
    if (nodes > kLargestCapacity / 2)
        return kLargestCapacity;
    return std::max(kSmallestCapacity, 2 * nodes);
}

int enlargedCapacity(const Data *d)
{
    if (d->alloc == kLargestCapacity)
        qBadAlloc();
    return capacityFor(d->alloc);
}

// Where nodes lie that are to be added to in front: with some room behind them, so that a list that
// grows at both ends in turn does not slide to and fro.
int beginBehindRoom(int capacity, int count)
{
    const int room = capacity - count;
    return room - room / 8;
}

// A block of its own with the nodes of another.
Data *copyOf(Data *other, int capacity, int begin)
{
    const int count = other->end - other->begin;
    void *const memory = std::malloc(sizeof(Data) + bytesOf(capacity));
    Q_CHECK_PTR(memory);
    Data *const copy = new (memory) Data{QAtomicInt(1), capacity, begin, begin + count, 1};
    std::memcpy(copy->nodes() + begin, other->nodes() + other->begin, bytesOf(count));
    return copy;
}

// What is slid rather than enlarged: a block so empty that many nodes can be added until the next
// slide, which makes up for the time that each slide takes.
bool isRoomy(const Data *d)
{
    const int used = d->end - d->begin;
    return d->alloc - used > d->alloc / 3;
}

} // namespace

COmMonitoredListData::Data COmMonitoredListData::shared_null = {QAtomicInt(1), 0, 0, 0, 1};

COmMonitoredListData::Data *COmMonitoredListData::detach()
{
    Data *const old = d;
    d = copyOf(old, capacityFor(size()), 0);
    return old->ref.deref() ? nullptr : old;
}

void COmMonitoredListData::freeBlock(Data *block)
{
    std::free(block);
}

void **COmMonitoredListData::insert(int i)
{
    const int count = size();
    if (i <= 0)
        return prepend();
    if (i >= count)
        return append();

    const bool roomBefore = d->begin > 0;
    const bool roomBehind = d->end < d->alloc;
    if (roomBefore && (!roomBehind || i < count - i)) {
        void **const first = begin();
        std::memmove(first - 1, first, bytesOf(i));
        --d->begin;
    } else {
        if (!roomBehind)
            enlarge();
        void **const place = begin() + i;
        std::memmove(place + 1, place, bytesOf(count - i));
        ++d->end;
    }
    return begin() + i;
}

void COmMonitoredListData::removeInside(int i)
{
    void **const first = begin();
    const int behind = size() - 1 - i;
    if (i < behind) {
        std::memmove(first + 1, first, bytesOf(i));
        ++d->begin;
    } else {
        std::memmove(first + i, first + i + 1, bytesOf(behind));
        --d->end;
    }
}

void COmMonitoredListData::move(int from, int to)
{
    void **const first = begin();
    unsigned char held[kNodeSize];
    std::memcpy(held, first + from, kNodeSize);
    if (from < to)
        std::memmove(first + from, first + from + 1, bytesOf(to - from));
    else
        std::memmove(first + to + 1, first + to, bytesOf(from - to));
    std::memcpy(first + to, held, kNodeSize);
}

void **COmMonitoredListData::erase(void **node)
{
    const int i = static_cast<int>(node - begin());
    remove(i);
    return begin() + i;
}

void COmMonitoredListData::makeRoomBehind()
{
    if (d->begin > 0 && isRoomy(d))
        slideTo(0);
    else
        enlarge();
}

void COmMonitoredListData::makeRoomBefore()
{
    if (isRoomy(d)) {
        slideTo(beginBehindRoom(d->alloc, size()));
        return;
    }
    const int capacity = enlargedCapacity(d);
    Data *const old = d;
    d = copyOf(old, capacity, beginBehindRoom(capacity, size()));
    d->sharable = old->sharable;
    freeBlock(old);
}

void COmMonitoredListData::enlarge()
{
    const int capacity = enlargedCapacity(d);
    // A header is plain numbers while only one handle points to it.
    void *const memory = std::realloc(static_cast<void *>(d), sizeof(Data) + bytesOf(capacity));
    Q_CHECK_PTR(memory);
    d = static_cast<Data *>(memory);
    d->alloc = capacity;
}

void COmMonitoredListData::slideTo(int begin)
{
    const int count = size();
    std::memmove(d->nodes() + begin, d->nodes() + d->begin, bytesOf(count));
    d->begin = begin;
    d->end = begin + count;
}
