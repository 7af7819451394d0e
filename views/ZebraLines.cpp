#include "views/ZebraLines.h"

#include <algorithm>
#include <iterator>

namespace ombrin {

void ZebraLines::reset(int minimumHeight)
{
    m_minimumHeight = std::max(minimumHeight, 1);
    m_highLines.clear();
    m_totalExcess = 0;
    m_firstChanged = kNoRow;
}

void ZebraLines::add(int row, int height)
{
    if (row < 0 || height <= m_minimumHeight)
        return;
    CountedSet &heights = m_highLines[row].heights;
    if (heights.isEmpty() || height > heights.largest())
        m_firstChanged = std::min(m_firstChanged, row);
    heights.add(height);
}

void ZebraLines::remove(int row, int height)
{
    const auto line = m_highLines.find(row);
    if (line == m_highLines.end() || height <= m_minimumHeight)
        return;
    CountedSet &heights = line->second.heights;
    heights.remove(height);
    if (heights.isEmpty() || heights.largest() < height)
        m_firstChanged = std::min(m_firstChanged, row);
    if (heights.isEmpty())
        m_highLines.erase(line);
}

int ZebraLines::settle()
{
    const int firstChanged = m_firstChanged;
    if (firstChanged == kNoRow)
        return kNoRow;
    m_firstChanged = kNoRow;
    auto line = m_highLines.lower_bound(firstChanged);
    qint64 above = 0;
    if (line != m_highLines.begin()) {
        const HighLine &previous = std::prev(line)->second;
        above = previous.above + excess(previous);
    }
    for (; line != m_highLines.end(); ++line) {
        line->second.above = above;
        above += excess(line->second);
    }
    m_totalExcess = above;
    return firstChanged;
}

qint64 ZebraLines::topOf(int row) const
{
    const auto next = m_highLines.lower_bound(row);
    const qint64 above = next == m_highLines.end() ? m_totalExcess : next->second.above;
    return static_cast<qint64>(row) * m_minimumHeight + above;
}

ZebraLines::Span ZebraLines::span(int row) const
{
    const auto line = m_highLines.find(row);
    const qint64 top = topOf(row);
    const qint64 bottom =
            top + m_minimumHeight + (line == m_highLines.end() ? 0 : excess(line->second));
    return {static_cast<int>(std::min<qint64>(top, kMaxCoordinate)),
            static_cast<int>(std::min<qint64>(bottom, kMaxCoordinate))};
}

int ZebraLines::rowAt(int y) const
{
    int row = 0;
    int beyond = std::max(y, 0) / m_minimumHeight + 1; // no line is lower than the minimum
    while (beyond - row > 1) {
        const int middle = row + (beyond - row) / 2;
        if (topOf(middle) <= y)
            row = middle;
        else
            beyond = middle;
    }
    return row;
}

} // namespace ombrin
