#include "core/VerdictCache.h"

#include <QtCore/QHash>

#include <algorithm>

namespace ombrin {

namespace {

constexpr std::size_t kEntries = 4096;

quint32 hashOf(const QString &word)
{
    return static_cast<quint32>(qHash(word));
}

} // namespace

VerdictCache::VerdictCache()
    : m_entries(kEntries)
{}

VerdictCache::Verdict VerdictCache::find(const QString &word) const
{
    const quint32 hash = hashOf(word);
    const Entry &entry = m_entries[hash % kEntries];
    const bool isThere = entry.hash == hash && entry.length == word.size()
                         && std::equal(entry.letters.begin(), entry.letters.begin() + entry.length,
                                       word.utf16());
    return isThere ? entry.verdict : Verdict::Unknown;
}

void VerdictCache::store(const QString &word, bool isCorrect)
{
    Entry entry;
    const auto length = static_cast<std::size_t>(word.size());
    if (length > entry.letters.size())
        return;
    entry.hash = hashOf(word);
    entry.length = static_cast<quint8>(length);
    entry.verdict = isCorrect ? Verdict::Correct : Verdict::Wrong;
    std::copy_n(word.utf16(), length, entry.letters.begin());
    m_entries[entry.hash % kEntries] = entry;
}

void VerdictCache::clear()
{
    std::fill(m_entries.begin(), m_entries.end(), Entry());
}

} // namespace ombrin
