#include "support/RatioCase.h"
#include "support/SampleText.h"

#include <ombrin/OmSpelling.h>
#include <ombrin/OmTextEdit.h>
#include <ombrin/OmTextEditSyntax.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QRegularExpression>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QTextEdit>

#ifdef OMBRIN_HAS_SONNET
#include <sonnet/highlighter.h>
#endif

// The chat input in long texts, and its highlighter beside simpler ones.

using ombrin::OmSpelling;
using ombrin::OmTextEdit;
using ombrin::OmTextEditSyntax;
using ombrin::bench::RatioCase;

namespace {

constexpr int kShort = 1024;
constexpr int kLong = 1024 * 1024;
constexpr int kHighlighted = 100 * 1024;
constexpr int kKnownWords = 1000;
constexpr int kVocabulary = 5000;

const QStringList &vocabulary()
{
    static const QStringList words =
            ombrin::bench::dictionaryWords(QStringLiteral("en_US"), kVocabulary);
    return words;
}

void type(QWidget *widget, int key, const QString &text = QString())
{
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(widget, &event);
}

void type(QWidget *widget, const QString &text)
{
    for (const QChar c : text)
        type(widget, c == QLatin1Char(' ') ? Qt::Key_Space : Qt::Key_A, QString(c));
}

QString textOfLength(int length)
{
    return ombrin::bench::sampleText(vocabulary(), length, 50);
}

// What a key costs does not depend on what was typed before: it is taken away again.
void typeInto(benchmark::State &state, int length, bool finishWords)
{
    OmTextEdit edit;
    edit.resize(400, 100);
    edit.setDict(QStringLiteral("en_US"));
    edit.setSpellChecking(true);
    edit.setPlainText(textOfLength(length));
    edit.moveCursor(QTextCursor::End);
    edit.show();
    QCoreApplication::processEvents();
    OmSpelling::instance()->checkWord(QStringLiteral("warm"));
    static int count = 0;
    for (auto _ : state) {
        // Every word is a new wrong one, to be underlined wherever it stands.
        const QString word = finishWords
                                     ? QStringLiteral("q%1x ").arg(++count, 5, 26, QLatin1Char('z'))
                                     : QStringLiteral("a");
        type(&edit, word);
        for (int i = 0; i < word.size(); ++i)
            type(&edit, Qt::Key_Backspace);
    }
}

// As a highlighter is mostly written.
class SearchingHighlighter : public QSyntaxHighlighter
{
public:
    SearchingHighlighter(QTextDocument *document, const QStringList &words)
        : QSyntaxHighlighter(document)
        , m_words(words)
    {
        m_format.setUnderlineStyle(QTextCharFormat::DashDotLine);
    }

protected:
    void highlightBlock(const QString &text) override
    {
        for (const QString &word : m_words) {
            const auto length = static_cast<int>(word.size());
            auto found = static_cast<int>(text.indexOf(word));
            for (; found >= 0; found = static_cast<int>(text.indexOf(word, found + length)))
                setFormat(found, length, m_format);
        }
    }

private:
    const QStringList m_words;
    QTextCharFormat m_format;
};

QString highlightedText()
{
    return ombrin::bench::sampleText(vocabulary(), kHighlighted, 12);
}

QStringList misspeltWords()
{
    QStringList words;
    for (int i = 0; i < kKnownWords; ++i)
        words.append(ombrin::bench::misspelt(
                vocabulary().at(static_cast<int>(qint64(i) * 12 * 7919 % vocabulary().size()))));
    return words;
}

void highlight(benchmark::State &state)
{
    QTextEdit edit;
    edit.setPlainText(highlightedText());
    OmTextEditSyntax syntax(&edit);
    const QStringList words = misspeltWords();
    for (const QString &word : words)
        syntax.addMisspelledWord(word);
    syntax.setSpellChecking(true);
    for (auto _ : state)
        syntax.rehighlight();
}

void highlightBySearch(benchmark::State &state)
{
    QTextEdit edit;
    edit.setPlainText(highlightedText());
    SearchingHighlighter highlighter(edit.document(), misspeltWords());
    for (auto _ : state)
        highlighter.rehighlight();
}

const RatioCase cases[] = {
        RatioCase(
                "text edit: typing a letter in 1 MB, beside 1 KB", 1.5,
                [](benchmark::State &state) { typeInto(state, kLong, false); },
                [](benchmark::State &state) { typeInto(state, kShort, false); }),
        RatioCase(
                "text edit: finishing a new wrong word in 1 MB, beside 1 KB", 1.5,
                [](benchmark::State &state) { typeInto(state, kLong, true); },
                [](benchmark::State &state) { typeInto(state, kShort, true); }),
        RatioCase("text edit: underlining 1,000 words, beside a search each", 0.05, highlight,
                  highlightBySearch),
};

#ifdef OMBRIN_HAS_SONNET
void highlightBySonnet(benchmark::State &state)
{
    QTextEdit edit;
    edit.setPlainText(highlightedText());
    Sonnet::Highlighter highlighter(&edit);
    highlighter.setCurrentLanguage(QStringLiteral("en_US"));
    highlighter.setAutomatic(false);
    highlighter.setActive(true);
    if (!highlighter.spellCheckerFound())
        state.SkipWithError("no dictionary");
    for (auto _ : state)
        highlighter.rehighlight();
}

const RatioCase sonnetCase("text edit: underlining 1,000 words, beside Sonnet", 0.6, highlight,
                           highlightBySonnet);
#endif

} // namespace
