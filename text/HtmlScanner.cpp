#include "text/HtmlScanner.h"

#include <algorithm>
#include <iterator>

namespace ombrin {

namespace {

// Where quotes hide the end of a tag for longer than this, or have done so for some times, they are
// not heeded: looking for their ends again and again would take for ever.
constexpr int kMaxQuotedTag = 4096;
constexpr int kMaxUnclosedQuotes = 16;
constexpr int kMaxAttributes = 32;
constexpr int kMaxEntity = 32;
constexpr uint kNoText = 0xffff;

struct NamedCharacter
{
    const char *name;
    ushort character;
};
constexpr NamedCharacter kNamedCharacters[] = {
        {"amp", '&'}, {"lt", '<'}, {"gt", '>'}, {"quot", '"'}, {"apos", '\''}, {"nbsp", 0xa0},
};

bool isAsciiLetter(QChar c)
{
    return (c >= QLatin1Char('a') && c <= QLatin1Char('z'))
           || (c >= QLatin1Char('A') && c <= QLatin1Char('Z'));
}

bool isAsciiAlphanumeric(QChar c)
{
    return isAsciiLetter(c) || (c >= QLatin1Char('0') && c <= QLatin1Char('9'));
}

bool isQuote(QChar c)
{
    return c == QLatin1Char('"') || c == QLatin1Char('\'');
}

// 0 if \a name is none of a number.
uint numberedCharacter(const QString &name)
{
    const bool isHexadecimal = name.startsWith(QStringLiteral("#x"), Qt::CaseInsensitive);
    const QString digits = name.mid(isHexadecimal ? 2 : 1);
    bool isNumber = false;
    const uint number = digits.toUInt(&isNumber, isHexadecimal ? 16 : 10);
    if (!isNumber)
        return 0;
    return number == 0 ? kNoText : number;
}

uint namedCharacter(const QString &name)
{
    if (name.startsWith(QLatin1Char('#')))
        return numberedCharacter(name);
    const auto found = std::find_if(
            std::begin(kNamedCharacters), std::end(kNamedCharacters),
            [&name](const NamedCharacter &named) { return name == QLatin1String(named.name); });
    return found == std::end(kNamedCharacters) ? 0 : found->character;
}

// With "&" and ";", or 0 where no entity stands.
int entityLength(const QString &text, int from)
{
    const int length = static_cast<int>(text.mid(from, kMaxEntity).indexOf(QLatin1Char(';'))) + 1;
    return length > 2 ? length : 0;
}

void appendCharacter(QString *text, uint character)
{
    if (QChar::requiresSurrogates(character)) {
        text->append(QChar(QChar::highSurrogate(character)));
        text->append(QChar(QChar::lowSurrogate(character)));
    } else {
        text->append(QChar(static_cast<ushort>(character)));
    }
}

} // namespace

QString HtmlTag::value(QLatin1String attributeName) const
{
    const auto found = std::find_if(attributes.begin(), attributes.end(),
                                    [attributeName](const Attribute &attribute) {
                                        return attribute.name == attributeName;
                                    });
    return found == attributes.end() ? QString() : found->value;
}

HtmlScanner::HtmlScanner(const QString &html, Syntax syntax)
    : m_html(html)
    , m_syntax(syntax)
{}

HtmlScanner::Piece HtmlScanner::next()
{
    while (m_position < m_html.size()) {
        const QChar c = m_syntax == Syntax::Html ? m_html.at(m_position) : QChar();
        if (c == QLatin1Char('<')) {
            if (skipDeclaration())
                continue;
            if (readTag())
                return Piece::Tag;
        }
        if (c == QLatin1Char('&') && readEntity())
            return m_entity.isEmpty() ? Piece::Character : Piece::Entity;
        readCharacter();
        return Piece::Character;
    }
    return Piece::End;
}

void HtmlScanner::skipContents()
{
    const int closing = findText(QStringLiteral("</") + m_tag.name, m_position);
    const int end = closing < 0 ? -1 : findText(QStringLiteral(">"), closing);
    m_position = end < 0 ? static_cast<int>(m_html.size()) : end + 1;
}

bool HtmlScanner::skipDeclaration()
{
    const QChar mark = at(m_position + 1);
    if (mark != QLatin1Char('!') && mark != QLatin1Char('?'))
        return false;
    const bool isComment = m_html.mid(m_position, 4) == QLatin1String("<!--");
    const QString closing = isComment ? QStringLiteral("-->") : QStringLiteral(">");
    const int end = findText(closing, m_position + 2);
    m_position = static_cast<int>(end < 0 ? m_html.size() : end + closing.size());
    return true;
}

// What looks like a tag but never ends is text.
bool HtmlScanner::readTag()
{
    if (!m_hasTags)
        return false;
    const bool isClosing = at(m_position + 1) == QLatin1Char('/');
    const int nameStart = m_position + (isClosing ? 2 : 1);
    if (!isAsciiLetter(at(nameStart)))
        return false;
    const int end = endOfTag(nameStart);
    if (end < 0)
        return false;
    int nameEnd = nameStart;
    while (isAsciiAlphanumeric(at(nameEnd)))
        ++nameEnd;
    m_tag.isClosing = isClosing;
    m_tag.name = m_html.mid(nameStart, nameEnd - nameStart).toLower();
    m_tag.attributes.clear();
    readAttributes(nameEnd, end);
    m_position = end + 1;
    return true;
}

int HtmlScanner::endOfTag(int from)
{
    const bool heedsQuotes = m_unclosedQuotes < kMaxUnclosedQuotes;
    const int length = heedsQuotes ? kMaxQuotedTag : 0;
    const int limit = qMin(from + length, static_cast<int>(m_html.size()));
    QChar quote;
    for (int i = from; i < limit; ++i) {
        const QChar c = m_html.at(i);
        if (!quote.isNull()) {
            if (c == quote)
                quote = QChar();
        } else if (isQuote(c)) {
            quote = c;
        } else if (c == QLatin1Char('>')) {
            return i;
        }
    }
    ++m_unclosedQuotes;
    const int end = findText(QStringLiteral(">"), from);
    m_hasTags = end >= 0;
    return end;
}

void HtmlScanner::readAttributes(int from, int end)
{
    int i = from;
    while (i < end && m_tag.attributes.size() < kMaxAttributes) {
        if (!isAsciiLetter(at(i))) {
            ++i;
            continue;
        }
        const int nameStart = i;
        while (i < end && (isAsciiAlphanumeric(at(i)) || at(i) == QLatin1Char('-')))
            ++i;
        HtmlTag::Attribute attribute;
        attribute.name = m_html.mid(nameStart, i - nameStart).toLower();
        while (i < end && at(i).isSpace())
            ++i;
        if (i < end && at(i) == QLatin1Char('=')) {
            ++i;
            while (i < end && at(i).isSpace())
                ++i;
            const QChar quote = isQuote(at(i)) ? at(i++) : QChar();
            const int start = i;
            while (i < end && (quote.isNull() ? !at(i).isSpace() : at(i) != quote))
                ++i;
            attribute.value = withoutEntities(m_html.mid(start, i - start));
            ++i;
        }
        m_tag.attributes.append(attribute);
    }
}

bool HtmlScanner::readEntity()
{
    const int length = entityLength(m_html, m_position);
    if (length == 0)
        return false;
    const QString name = m_html.mid(m_position + 1, length - 2);
    m_entity.clear();
    m_character = namedCharacter(name);
    if (m_character == 0) {
        if (!isAsciiLetter(name.at(0))
            || !std::all_of(name.begin(), name.end(), isAsciiAlphanumeric))
            return false;
        m_entity = m_html.mid(m_position, length);
    }
    m_position += length;
    return true;
}

void HtmlScanner::readCharacter()
{
    const QChar c = m_html.at(m_position++);
    m_character = c.unicode();
    if (c.isHighSurrogate() && at(m_position).isLowSurrogate())
        m_character = QChar::surrogateToUcs4(c, m_html.at(m_position++));
}

int HtmlScanner::findText(const QString &text, int from) const
{
    return static_cast<int>(m_html.indexOf(text, from, Qt::CaseInsensitive));
}

QChar HtmlScanner::at(int index) const
{
    return index < m_html.size() ? m_html.at(index) : QChar();
}

QString withoutEntities(const QString &text)
{
    if (!text.contains(QLatin1Char('&')))
        return text;
    QString plain;
    for (int i = 0; i < text.size(); ++i) {
        const int length = text.at(i) == QLatin1Char('&') ? entityLength(text, i) : 0;
        const uint character = length > 0 ? namedCharacter(text.mid(i + 1, length - 2)) : 0;
        if (character == 0 || character > QChar::LastValidCodePoint) {
            plain += text.at(i);
            continue;
        }
        appendCharacter(&plain, character);
        i += length - 1;
    }
    return plain;
}

} // namespace ombrin
