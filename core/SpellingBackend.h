#pragma once

#include <ombrin/OmGlobal.h>

#include <QtCore/QHash>
#include <QtCore/QStringList>

#include <functional>
#include <memory>

namespace ombrin {

/// The two files of a dictionary.
struct SpellingFiles
{
    QString affixes;
    QString words;

    bool operator==(const SpellingFiles &other) const
    {
        return affixes == other.affixes && words == other.words;
    }
};

/// One loaded dictionary. Not to be used by two threads at once, and no two are made or destroyed
/// at once.
class SpellingBackend
{
public:
    virtual ~SpellingBackend() = default;

    virtual bool isCorrect(const QString &word) = 0;
    virtual QStringList suggestions(const QString &word) = 0;
    /// Lets \a word be suggested until the backend is destroyed.
    virtual void addWord(const QString &word) = 0;
};

/// Loads a dictionary; null if it cannot be used.
using SpellingBackendFactory =
        std::function<std::unique_ptr<SpellingBackend>(const SpellingFiles &)>;

/// What loads dictionaries; empty in builds without Hunspell.
OMBRIN_CORE_AUTOTEST_EXPORT SpellingBackendFactory spellingBackendFactory();
/// Loads all dictionaries through \a factory from now on, for tests. Choose no dictionary first.
OMBRIN_CORE_AUTOTEST_EXPORT void setSpellingBackendFactory(const SpellingBackendFactory &factory);

/// Whether both files can be read and look like a dictionary's.
bool areUsable(const SpellingFiles &files);

/// The dictionaries in all folders that are searched, by their names.
OMBRIN_CORE_AUTOTEST_EXPORT QHash<QString, SpellingFiles> installedDictionaries();

} // namespace ombrin
