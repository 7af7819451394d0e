#pragma once

#include <map>

namespace ombrin {

/// Numbers with how often each occurs, of which the largest is of interest.
class CountedSet
{
public:
    bool isEmpty() const { return m_counts.empty(); }
    /// The set must not be empty.
    int largest() const { return m_counts.rbegin()->first; }

    void add(int number)
    {
        // Numbers mostly come in ascending order.
        const auto last = m_counts.rbegin();
        if (last == m_counts.rend() || last->first < number)
            m_counts.emplace_hint(m_counts.end(), number, 1);
        else if (last->first == number)
            ++last->second;
        else
            ++m_counts[number];
    }
    void remove(int number)
    {
        const auto found = m_counts.find(number);
        if (found != m_counts.end() && --found->second == 0)
            m_counts.erase(found);
    }

private:
    std::map<int, int> m_counts;
};

} // namespace ombrin
