#pragma once

#include "views/CountedSet.h"

#include <ombrin/OmGlobal.h>

#include <limits>
#include <map>

namespace ombrin {

/// The lines of a zebra view: each is as high as its highest item and at least of a minimum height.
///
/// Only lines higher than the minimum are kept, so that a line far down costs nothing.
class OMBRIN_AUTOTEST_EXPORT ZebraLines
{
public:
    /// Where a line is, in pixels; bottom is one past it.
    struct Span
    {
        int top;
        int bottom;
    };

    /// Coordinates are cut off here.
    static constexpr int kMaxCoordinate = 1 << 30;
    static constexpr int kNoRow = std::numeric_limits<int>::max();

    /// Forgets all items and takes a new minimum height, in pixels; what is below 1 counts as 1.
    void reset(int minimumHeight);

    /// An item of this height comes into a line, or leaves it. A negative row is in no line.
    void add(int row, int height);
    void remove(int row, int height);

    /// To be called after changes and before asking for places. Returns the first line that became
    /// higher or lower, or kNoRow; all lines below it have moved.
    int settle();

    /// The place of a line, which may be beyond that of any item.
    Span span(int row) const;
    /// The line at the height \a y.
    int rowAt(int y) const;

private:
    struct HighLine
    {
        CountedSet heights;
        qint64 above = 0; // what the lines above have more than the minimum, altogether
    };

    qint64 topOf(int row) const;
    qint64 excess(const HighLine &line) const { return line.heights.largest() - m_minimumHeight; }

    int m_minimumHeight = 1;
    std::map<int, HighLine> m_highLines;
    qint64 m_totalExcess = 0;
    int m_firstChanged = kNoRow;
};

} // namespace ombrin
