#pragma once

#include <ombrin/OmGlobal.h>

#include <QtCore/QHash>
#include <QtCore/QSet>
#include <QtCore/QStringList>
#include <QtGui/QSyntaxHighlighter>

#include <memory>

class QTextEdit;

namespace ombrin {

class WordIndex;

/// Underlines the words that it was told are misspelt.
///
/// \code
/// auto *syntax = new ombrin::OmTextEditSyntax(textEdit);
/// syntax->addMisspelledWord(QStringLiteral("helo"));
/// syntax->rehighlightWord(QStringLiteral("helo"));
/// \endcode
///
/// A word is underlined, in red, where it begins its paragraph or follows a blank, a comma, a
/// question mark, an exclamation mark or a full stop, and one of these follows it. Case matters.
///
/// It does not judge words itself. OmTextEdit has one of its own.
///
/// Once setSpellChecking(true) was called it keeps track of which paragraph holds which words, as
/// user data of the document's text blocks. In a document that has user data of someone else it
/// gets along without, more slowly.
///
/// \ingroup text
class OMBRIN_GUI_EXPORT OmTextEditSyntax : public QSyntaxHighlighter
{
    Q_OBJECT

public:
    /// Works on the document that \a parent has now, and is owned by \a parent.
    explicit OmTextEditSyntax(QTextEdit *parent);
    ~OmTextEditSyntax() override;

    /// Takes \a word for misspelt or for correct. The caller highlights anew afterwards, with
    /// rehighlightWord() or rehighlight(). An empty word is ignored.
    void addMisspelledWord(const QString &word);
    void removeMisspelledWord(const QString &word);
    /// Whether \a word is taken for misspelt, switched on or not.
    bool isMisspelled(const QString &word) const;

    /// Switches the underlines on, as they are at first, or off. Misspelt words are remembered
    /// meanwhile. The caller calls rehighlight() afterwards.
    void setSpellChecking(bool on);

    /// Highlights anew the paragraphs that hold \a word, without looking at the others.
    void rehighlightWord(const QString &word);

protected:
    void highlightBlock(const QString &text) override;

private:
    void show(const QString &word);
    void hide(const QString &word);
    bool isShown(QStringView word, quint32 hash) const;
    void highlightPhrase(const QString &text, const QString &phrase);

    QMultiHash<quint32, QString> m_shownWords;
    // Shown words that hold what ends a word: only a host can have made them.
    QStringList m_shownPhrases;
    QSet<QString> m_knownWords;
    // Of use from the first time that checking is switched on: whoever does that highlights the
    // whole document then.
    std::shared_ptr<WordIndex> m_index;
    bool m_isIndexing = false;
};

} // namespace ombrin
