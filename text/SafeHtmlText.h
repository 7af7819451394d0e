#pragma once

#include <ombrin/OmGlobal.h>

#include <QtCore/QString>

namespace ombrin {

/// The text of a piece of safe HTML while it is written: takes single characters, leaves out those
/// that are no text, and keeps words at a length that can be laid out quickly.
class SafeHtmlText
{
public:
    explicit SafeHtmlText(int expectedLength);

    /// Appends a character as text: escaped, or not at all.
    void appendCharacter(uint character);
    /// Appends a character as it is, with blanks as many as there are.
    void appendVerbatim(uint character);
    void appendText(const QString &text);
    /// Appends a blank unless the text ends with one.
    void appendBlank();
    /// Appends what stands for one character that is no blank.
    void appendEntity(const QString &entity);
    /// Appends HTML that separates words, such as a line break, or that does not.
    void appendMarkup(const QString &markup, bool separatesWords);

    const QString &html() const { return m_html; }

private:
    bool takesMark(QChar::Category category);
    void growWord(uint character);
    void endWord();

    QString m_html;
    bool m_endsBlank = true;
    int m_marks = 0;
    int m_wordCost = 0;
    int m_joined = 0;
    QChar::Script m_script = QChar::Script_Common;
};

} // namespace ombrin
