#pragma once

#include "core/PersonalFile.h"

#include <ombrin/OmGlobal.h>

#include <QtCore/QHash>
#include <QtCore/QSet>

#include <memory>

namespace ombrin {

/// The words that the user has added and the replacements that the user has chosen.
class OMBRIN_CORE_AUTOTEST_EXPORT PersonalWords
{
public:
    /// Reads the files in \a folder.
    explicit PersonalWords(const QString &folder);

    bool contains(const QString &word, bool regardCase) const;
    /// All words, as they were added.
    QStringList words() const;
    /// What the user last chose for \a wrong, or an empty text.
    QString replacement(const QString &wrong) const;

    void addWord(const QString &word);
    void addReplacement(const QString &wrong, const QString &right);

    /// The files that save() is to be called for, from any thread, after adding.
    std::shared_ptr<PersonalFile> wordFile() const { return m_wordFile; }
    std::shared_ptr<PersonalFile> replacementFile() const { return m_replacementFile; }

private:
    void insertWord(const QString &word);

    std::shared_ptr<PersonalFile> m_wordFile;
    std::shared_ptr<PersonalFile> m_replacementFile;
    QSet<QString> m_words;
    QSet<QString> m_foldedWords;
    QHash<QString, QString> m_replacements;
};

} // namespace ombrin
