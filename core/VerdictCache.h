#pragma once

#include <ombrin/OmGlobal.h>

#include <QtCore/QString>

#include <array>
#include <vector>

namespace ombrin {

/// Remembers which of the words last seen were correct.
///
/// A word has one place, which it takes from the word that was there: looking up and storing cost
/// no allocation, and the memory used is fixed. Words too long for a place are not remembered.
class VerdictCache
{
public:
    enum class Verdict : quint8 { Unknown, Correct, Wrong };

    VerdictCache();

    Verdict find(const QString &word) const;
    void store(const QString &word, bool isCorrect);
    void clear();

private:
    // One cache line.
    struct Entry
    {
        quint32 hash = 0;
        quint8 length = 0;
        Verdict verdict = Verdict::Unknown;
        std::array<ushort, 29> letters = {};
    };
    static_assert(sizeof(Entry) == 64);

    std::vector<Entry> m_entries;
};

} // namespace ombrin
