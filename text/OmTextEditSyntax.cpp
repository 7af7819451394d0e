#include <ombrin/OmTextEditSyntax.h>

#include "text/WordEnds.h"
#include "text/WordIndex.h"

#include <QtWidgets/QTextEdit>

#include <algorithm>

namespace ombrin {

namespace {

quint32 hashOf(QStringView word)
{
    return static_cast<quint32>(qHash(word));
}

bool isPhrase(const QString &word)
{
    return std::any_of(word.cbegin(), word.cend(), isWordEnd);
}

QTextCharFormat underline()
{
    QTextCharFormat format;
    format.setFontUnderline(true);
    format.setUnderlineColor(Qt::red);
    format.setUnderlineStyle(QTextCharFormat::DashDotLine);
    return format;
}

} // namespace

OmTextEditSyntax::OmTextEditSyntax(QTextEdit *parent)
    : QSyntaxHighlighter(static_cast<QObject *>(parent))
    , m_index(std::make_shared<WordIndex>())
{}

OmTextEditSyntax::~OmTextEditSyntax() = default;

void OmTextEditSyntax::addMisspelledWord(const QString &word)
{
    if (word.isEmpty() || m_knownWords.contains(word))
        return;
    m_knownWords.insert(word);
    show(word);
}

void OmTextEditSyntax::removeMisspelledWord(const QString &word)
{
    m_knownWords.remove(word);
    hide(word);
}

bool OmTextEditSyntax::isMisspelled(const QString &word) const
{
    return m_knownWords.contains(word);
}

void OmTextEditSyntax::setSpellChecking(bool on)
{
    m_shownWords.clear();
    m_shownPhrases.clear();
    m_isIndexing = on;
    if (!on)
        return;
    for (const QString &word : std::as_const(m_knownWords))
        show(word);
}

void OmTextEditSyntax::rehighlightWord(const QString &word)
{
    if (!document())
        return;
    if (!m_isIndexing || !m_index->isComplete(document()) || isPhrase(word)) {
        rehighlight();
        return;
    }
    for (const QTextBlock &paragraph : m_index->paragraphsWith(hashOf(word)))
        rehighlightBlock(paragraph);
}

void OmTextEditSyntax::highlightBlock(const QString &text)
{
    static const QTextCharFormat format = underline();
    std::vector<quint32> words;
    const QStringView view(text);
    const auto length = static_cast<int>(text.size());
    for (int start = 0; start < length; ++start) {
        int end = start;
        while (end < length && !isWordEnd(view.at(end)))
            ++end;
        if (end == start)
            continue;
        const QStringView word = view.mid(start, end - start);
        const quint32 hash = hashOf(word);
        if (m_isIndexing)
            words.push_back(hash);
        if (end < length && isShown(word, hash))
            setFormat(start, end - start, format);
        start = end;
    }
    for (const QString &phrase : std::as_const(m_shownPhrases))
        highlightPhrase(text, phrase);
    if (m_isIndexing)
        m_index->update(currentBlock(), std::move(words));
}

void OmTextEditSyntax::highlightPhrase(const QString &text, const QString &phrase)
{
    const auto length = static_cast<int>(phrase.size());
    int start = static_cast<int>(text.indexOf(phrase));
    while (start >= 0) {
        const int end = start + length;
        const bool begins = start == 0 || isWordEnd(text.at(start - 1));
        if (begins && end < text.size() && isWordEnd(text.at(end)))
            setFormat(start, length, underline());
        start = static_cast<int>(text.indexOf(phrase, end));
    }
}

void OmTextEditSyntax::show(const QString &word)
{
    if (isPhrase(word))
        m_shownPhrases.append(word);
    else
        m_shownWords.insert(hashOf(word), word);
}

void OmTextEditSyntax::hide(const QString &word)
{
    m_shownPhrases.removeOne(word);
    m_shownWords.remove(hashOf(word), word);
}

bool OmTextEditSyntax::isShown(QStringView word, quint32 hash) const
{
    const auto end = m_shownWords.cend();
    for (auto shown = m_shownWords.constFind(hash); shown != end && shown.key() == hash; ++shown) {
        if (QStringView(shown.value()) == word)
            return true;
    }
    return false;
}

} // namespace ombrin
