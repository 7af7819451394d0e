#include "core/PersonalWords.h"

#include "core/WordForms.h"

namespace ombrin {

namespace {

constexpr QChar kTab(u'\t');

} // namespace

PersonalWords::PersonalWords(const QString &folder)
    : m_wordFile(std::make_shared<PersonalFile>(folder + QStringLiteral("/personal.txt")))
    , m_replacementFile(
              std::make_shared<PersonalFile>(folder + QStringLiteral("/replacements.txt")))
{
    const QStringList words = m_wordFile->lines();
    for (const QString &word : words)
        insertWord(word);
    const QStringList replacements = m_replacementFile->lines();
    for (const QString &line : replacements) {
        const QString right = line.section(kTab, 1, 1);
        if (isWord(right))
            m_replacements.insert(line.section(kTab, 0, 0), right);
    }
}

// Where case matters a word in lower case may still begin a sentence or stand in a headline.
bool PersonalWords::contains(const QString &word, bool regardCase) const
{
    if (m_words.isEmpty())
        return false;
    const QString plain = withPlainApostrophes(word);
    if (!regardCase)
        return m_foldedWords.contains(plain.toCaseFolded());
    if (m_words.contains(plain))
        return true;
    const QString lower = plain.toLower();
    return m_words.contains(lower) && otherCapitalisations(lower).contains(plain);
}

QStringList PersonalWords::words() const
{
    return m_words.values();
}

QString PersonalWords::replacement(const QString &wrong) const
{
    return m_replacements.value(wrong);
}

void PersonalWords::addWord(const QString &word)
{
    insertWord(word);
    m_wordFile->add(word);
}

void PersonalWords::addReplacement(const QString &wrong, const QString &right)
{
    m_replacements.insert(wrong, right);
    m_replacementFile->add(wrong + kTab + right);
}

void PersonalWords::insertWord(const QString &word)
{
    if (!isWord(word))
        return;
    const QString plain = withPlainApostrophes(word);
    m_words.insert(plain);
    m_foldedWords.insert(plain.toCaseFolded());
}

} // namespace ombrin
