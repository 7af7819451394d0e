#include "text/SafeHtmlText.h"

namespace ombrin {

namespace {

constexpr int kMaxMarks = 8;
// Laying out a word takes time by the square of its length, and more where scripts change in it.
constexpr int kMaxWordCost = 320;
constexpr int kScriptChangeCost = 24;
// Letters that are shaped by their neighbours are laid out anew from the last blank or line break
// for each line.
constexpr int kMaxJoined = 2000;
constexpr QChar kZeroWidthSpace(0x200b);

bool isDirectionOverride(uint c)
{
    return (c >= 0x202a && c <= 0x202e) || (c >= 0x2066 && c <= 0x2069);
}

// Documents mark their frames and objects with some of these.
bool isNoText(uint c)
{
    const QChar::Category category = QChar::category(c);
    return category == QChar::Other_Control || category == QChar::Other_Surrogate
           || QChar::isNonCharacter(c) || c > QChar::LastValidCodePoint || isDirectionOverride(c)
           || (c >= 0xfff9 && c <= 0xfffc);
}

bool isBlank(uint c)
{
    return c == ' ' || (c >= '\t' && c <= '\r') || c == 0x85 || c == 0x2028 || c == 0x2029;
}

bool breaksAnywhere(QChar::Script script)
{
    return script == QChar::Script_Han || script == QChar::Script_Hiragana
           || script == QChar::Script_Katakana || script == QChar::Script_Hangul;
}

// Letters that are shaped by their neighbours.
bool isJoining(QChar::Script script)
{
    return script == QChar::Script_Arabic || script == QChar::Script_Syriac
           || script == QChar::Script_Nko || script == QChar::Script_Mongolian;
}

bool hasScript(QChar::Script script)
{
    return script != QChar::Script_Common && script != QChar::Script_Inherited
           && script != QChar::Script_Unknown;
}

} // namespace

SafeHtmlText::SafeHtmlText(int expectedLength)
{
    m_html.reserve(expectedLength + expectedLength / 8);
}

void SafeHtmlText::appendCharacter(uint character)
{
    if (isBlank(character))
        return appendBlank();
    if (isNoText(character) || !takesMark(QChar::category(character)))
        return;
    growWord(character);
    switch (character) {
    case '<':
        m_html += QStringLiteral("&lt;");
        break;
    case '>':
        m_html += QStringLiteral("&gt;");
        break;
    case '&':
        m_html += QStringLiteral("&amp;");
        break;
    default:
        if (QChar::requiresSurrogates(character)) {
            m_html += QChar(QChar::highSurrogate(character));
            m_html += QChar(QChar::lowSurrogate(character));
        } else {
            m_html += QChar(static_cast<ushort>(character));
        }
    }
    m_endsBlank = false;
}

// Of adjacent blanks only one would be seen.
void SafeHtmlText::appendVerbatim(uint character)
{
    const bool isHiddenBlank = isBlank(character) && m_endsBlank;
    appendCharacter(isHiddenBlank ? uint(QChar::Nbsp) : character);
}

void SafeHtmlText::appendText(const QString &text)
{
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        const bool isPair =
                c.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate();
        appendCharacter(isPair ? QChar::surrogateToUcs4(c, text.at(++i)) : c.unicode());
    }
}

void SafeHtmlText::appendBlank()
{
    if (!m_endsBlank)
        m_html += QLatin1Char(' ');
    m_endsBlank = true;
    endWord();
}

void SafeHtmlText::appendEntity(const QString &entity)
{
    m_marks = 0;
    growWord(QLatin1Char('&').unicode());
    m_html += entity;
    m_endsBlank = false;
}

void SafeHtmlText::appendMarkup(const QString &markup, bool separatesWords)
{
    m_html += markup;
    if (separatesWords) {
        m_endsBlank = true;
        endWord();
    }
}

// Joiners and the like count as marks, since they make characters belong together as those do.
bool SafeHtmlText::takesMark(QChar::Category category)
{
    const bool isMark = category == QChar::Mark_NonSpacing || category == QChar::Mark_Enclosing
                        || category == QChar::Mark_SpacingCombining
                        || category == QChar::Other_Format;
    m_marks = isMark ? qMin(m_marks + 1, kMaxMarks + 1) : 0;
    return m_marks <= kMaxMarks;
}

void SafeHtmlText::growWord(uint character)
{
    const QChar::Script script = QChar::script(character);
    if (breaksAnywhere(script))
        m_wordCost = 0;
    if (isJoining(script))
        ++m_joined;
    ++m_wordCost;
    if (hasScript(script) && script != m_script) {
        m_wordCost += kScriptChangeCost;
        m_script = script;
    }
    if (m_marks > 0)
        return;
    if (m_joined > kMaxJoined) {
        endWord();
        m_html += QStringLiteral("<br>");
    } else if (m_wordCost > kMaxWordCost) {
        m_wordCost = 1;
        m_html += kZeroWidthSpace;
    }
}

void SafeHtmlText::endWord()
{
    m_wordCost = 0;
    m_joined = 0;
    m_marks = 0;
}

} // namespace ombrin
