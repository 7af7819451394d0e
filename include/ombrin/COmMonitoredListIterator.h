#pragma once

#include <cstddef>
#include <iterator>
#include <type_traits>

/// The random-access iterator of COmMonitoredList: \a Value is its element type, const for the
/// iterator that does not change elements.
///
/// \code
/// const auto found = std::find(playlist.begin(), playlist.end(), song);
/// if (found != playlist.end())
///     playlist.erase(found);
/// \endcode
///
/// An element assigned through an iterator passes none of the list's hooks. An iterator is valid
/// until the list is next changed or destroyed.
///
/// \ingroup views
template <typename Value>
class COmMonitoredListIterator
{
public:
    /// What the standard library asks of iterators.
    using iterator_category = std::random_access_iterator_tag;
    using difference_type = std::ptrdiff_t;
    using value_type = std::remove_const_t<Value>;
    using pointer = Value *;
    using reference = Value &;

    /// Points to nothing.
    COmMonitoredListIterator() = default;
    /// Points to the element at the address \a node.
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

    /// The element that it points to.
    Value &operator*() const { return *i; }
    /// The element that it points to.
    Value *operator->() const { return i; }
    /// The element \a distance further.
    Value &operator[](difference_type distance) const { return i[distance]; }

    /// One further.
    COmMonitoredListIterator &operator++()
    {
        ++i;
        return *this;
    }
    /// One further; returns where it was.
    COmMonitoredListIterator operator++(int) { return COmMonitoredListIterator(i++); }
    /// One back.
    COmMonitoredListIterator &operator--()
    {
        --i;
        return *this;
    }
    /// One back; returns where it was.
    COmMonitoredListIterator operator--(int) { return COmMonitoredListIterator(i--); }
    /// \a distance further.
    COmMonitoredListIterator &operator+=(difference_type distance)
    {
        i += distance;
        return *this;
    }
    /// \a distance back.
    COmMonitoredListIterator &operator-=(difference_type distance)
    {
        i -= distance;
        return *this;
    }

    /// Iterators add, subtract and compare as pointers do.
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
