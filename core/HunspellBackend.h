#pragma once

#include "core/SpellingBackend.h"
#include "core/WordEncoding.h"

#include <hunspell/hunspell.hxx>

#include <string>

namespace ombrin {

/// A dictionary loaded by Hunspell.
class HunspellBackend : public SpellingBackend
{
public:
    /// Null if the dictionary is written in an encoding that is not known here.
    static std::unique_ptr<SpellingBackend> create(const SpellingFiles &files);

    bool isCorrect(const QString &word) override;
    QStringList suggestions(const QString &word) override;
    void addWord(const QString &word) override;

private:
    explicit HunspellBackend(const SpellingFiles &files);

    Hunspell m_hunspell;
    WordEncoding m_encoding;
    std::string m_word;
};

} // namespace ombrin
