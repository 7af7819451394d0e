#pragma once

#include <cstddef>
#include <iterator>
#include <type_traits>

/// The random-access iterator of COmMonitoredList: \a Value is its element type, const for the
/// iterator that does not change elements.
///
/// An element assigned through an iterator passes none of the list's hooks. An iterator is valid
/// until the list is next changed or destroyed.
template <typename Value>
class COmMonitoredListIterator
{
public:
    using iterator_category = std::random_access_iterator_tag;
    using difference_type = std::ptrdiff_t;
    using value_type = std::remove_const_t<Value>;
    using pointer = Value *;
    using reference = Value &;

    COmMonitoredListIterator() = default;
    explicit COmMonitoredListIterator(Value *node)
        : i(node)
    {}
    /// An iterator converts to one that does not change elements.
    template <typename Other,
              typename = std::enable_if_t<
                      std::is_same_v<const Other, Value> && !std::is_same_v<Other, Value>>>
    COmMonitoredListIterator(const COmMonitoredListIterator<Other> &other)
        : i(other.i)
    {}

    Value &operator*() const { return *i; }
    Value *operator->() const { return i; }
    Value &operator[](difference_type distance) const { return i[distance]; }

    COmMonitoredListIterator &operator++()
    {
        ++i;
        return *this;
    }
    COmMonitoredListIterator operator++(int) { return COmMonitoredListIterator(i++); }
    COmMonitoredListIterator &operator--()
    {
        --i;
        return *this;
    }
    COmMonitoredListIterator operator--(int) { return COmMonitoredListIterator(i--); }
    COmMonitoredListIterator &operator+=(difference_type distance)
    {
        i += distance;
        return *this;
    }
    COmMonitoredListIterator &operator-=(difference_type distance)
    {
        i -= distance;
        return *this;
    }

    friend COmMonitoredListIterator operator+(COmMonitoredListIterator it, difference_type distance)
    {
        return it += distance;
    }
    friend COmMonitoredListIterator operator+(difference_type distance, COmMonitoredListIterator it)
    {
        return it += distance;
    }
    friend COmMonitoredListIterator operator-(COmMonitoredListIterator it, difference_type distance)
    {
        return it -= distance;
    }
    friend difference_type operator-(COmMonitoredListIterator a, COmMonitoredListIterator b)
    {
        return a.i - b.i;
    }
    friend bool operator==(COmMonitoredListIterator a, COmMonitoredListIterator b)
    {
        return a.i == b.i;
    }
    friend bool operator!=(COmMonitoredListIterator a, COmMonitoredListIterator b)
    {
        return a.i != b.i;
    }
    friend bool operator<(COmMonitoredListIterator a, COmMonitoredListIterator b)
    {
        return a.i < b.i;
    }
    friend bool operator<=(COmMonitoredListIterator a, COmMonitoredListIterator b)
    {
        return a.i <= b.i;
    }
    friend bool operator>(COmMonitoredListIterator a, COmMonitoredListIterator b)
    {
        return a.i > b.i;
    }
    friend bool operator>=(COmMonitoredListIterator a, COmMonitoredListIterator b)
    {
        return a.i >= b.i;
    }

    Value *i = nullptr; ///< The address of the element.
};
