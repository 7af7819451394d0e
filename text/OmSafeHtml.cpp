#include <ombrin/OmSafeHtml.h>

#include "text/HtmlScanner.h"
#include "text/SafeHtmlText.h"
#include "text/SafeHtmlValues.h"

#include <algorithm>
#include <iterator>
#include <vector>

namespace ombrin {

namespace {

constexpr int kMaxDepth = 16;
// What tags may cost to lay out, in line breaks, for each started portion of text.
constexpr int kPortion = 65536;
constexpr int kTagCostPerPortion = 4000;
constexpr int kInlineCost = 1;
constexpr int kBlockCost = 2;
constexpr int kListItemCost = 8;

enum class Role {
    Inline,
    Styled, ///< font and span, which may carry a style
    Link,
    Paragraph, ///< a block that the next block ends
    Block,
    List,
    ListItem,
    Rule,
    LineBreak,
    Row,  ///< what stands in a line of its own where it is not allowed
    Cell, ///< what is parted from its neighbours where it is not allowed
    Picture,
    Hidden, ///< vanishes with its contents
};

struct KnownTag
{
    const char *name;
    Role role;
    const char *written = nullptr; ///< Another name for it, if it has a plainer one.
};

constexpr KnownTag kKnownTags[] = {
        {"a", Role::Link},
        {"b", Role::Inline},
        {"big", Role::Inline},
        {"blockquote", Role::Block},
        {"br", Role::LineBreak},
        {"center", Role::Block},
        {"cite", Role::Inline},
        {"code", Role::Inline},
        {"dd", Role::Row},
        {"del", Role::Inline, "s"},
        {"dfn", Role::Inline},
        {"div", Role::Block},
        {"dt", Role::Row},
        {"em", Role::Inline},
        {"font", Role::Styled, "span"},
        {"h1", Role::Paragraph},
        {"h2", Role::Paragraph},
        {"h3", Role::Paragraph},
        {"h4", Role::Paragraph},
        {"h5", Role::Paragraph},
        {"h6", Role::Paragraph},
        {"head", Role::Hidden},
        {"hr", Role::Rule},
        {"i", Role::Inline},
        {"iframe", Role::Hidden},
        {"img", Role::Picture},
        {"ins", Role::Inline, "u"},
        {"kbd", Role::Inline},
        {"li", Role::ListItem},
        {"noscript", Role::Hidden},
        {"object", Role::Hidden},
        {"ol", Role::List},
        {"p", Role::Paragraph},
        {"pre", Role::Paragraph, "p"},
        {"s", Role::Inline},
        {"samp", Role::Inline},
        {"script", Role::Hidden},
        {"small", Role::Inline},
        {"span", Role::Styled},
        {"strike", Role::Inline, "s"},
        {"strong", Role::Inline},
        {"style", Role::Hidden},
        {"sub", Role::Inline},
        {"sup", Role::Inline},
        {"table", Role::Row},
        {"td", Role::Cell},
        {"th", Role::Cell},
        {"title", Role::Hidden},
        {"tr", Role::Row},
        {"tt", Role::Inline},
        {"u", Role::Inline},
        {"ul", Role::List},
        {"var", Role::Inline},
};

const KnownTag *findTag(const QString &name)
{
    const auto found =
            std::find_if(std::begin(kKnownTags), std::end(kKnownTags),
                         [&name](const KnownTag &tag) { return name == QLatin1String(tag.name); });
    return found == std::end(kKnownTags) ? nullptr : found;
}

// Writes a well-formed fragment, with every tag closed that is opened.
class SafeHtmlWriter
{
public:
    explicit SafeHtmlWriter(int length)
        : m_text(length)
        , m_budget(kTagCostPerPortion * (length / kPortion + 1))
    {}

    SafeHtmlText &text() { return m_text; }
    void open(const KnownTag &known, const HtmlTag &tag);
    void close(const KnownTag &known);
    void breakLine();
    QString finished();

private:
    struct OpenTag
    {
        Role role;
        QString name;
        bool isWritten;
    };

    void push(const KnownTag &known, int cost, const QString &attributes, bool isWritten = true);
    void pop();
    void popTo(std::size_t depth);
    void endParagraph();
    void openListItem(const KnownTag &known);
    bool pay(int cost);

    SafeHtmlText m_text;
    std::vector<OpenTag> m_open;
    int m_budget;
};

QString writtenName(const KnownTag &known)
{
    return QString::fromLatin1(known.written ? known.written : known.name);
}

bool isBlock(Role role)
{
    return role == Role::Paragraph || role == Role::Block || role == Role::List
           || role == Role::ListItem;
}

void SafeHtmlWriter::open(const KnownTag &known, const HtmlTag &tag)
{
    switch (known.role) {
    case Role::Inline:
        return push(known, kInlineCost, QString());
    case Role::Styled: {
        const QString style = safeStyle(tag);
        return push(known, kInlineCost, QStringLiteral(" style=\"") + style + QLatin1Char('"'),
                    !style.isEmpty());
    }
    case Role::Link: {
        close(known);
        const QString link = safeLink(tag.value(QLatin1String("href")));
        return push(known, kInlineCost, QStringLiteral(" href=\"") + link + QLatin1Char('"'),
                    !link.isEmpty());
    }
    case Role::Paragraph:
    case Role::Block:
    case Role::List:
        endParagraph();
        return push(known, kBlockCost, QString());
    case Role::ListItem:
        return openListItem(known);
    case Role::Rule:
        endParagraph();
        if (pay(kBlockCost))
            m_text.appendMarkup(QStringLiteral("<hr>"), true);
        return;
    case Role::LineBreak:
    case Role::Row:
        return breakLine();
    case Role::Cell:
        return m_text.appendBlank();
    case Role::Picture:
        return m_text.appendText(tag.value(QLatin1String("alt")));
    case Role::Hidden:
        return;
    }
}

void SafeHtmlWriter::close(const KnownTag &known)
{
    const QString name = writtenName(known);
    for (std::size_t depth = m_open.size(); depth > 0; --depth) {
        if (m_open[depth - 1].name == name)
            return popTo(depth - 1);
    }
}

void SafeHtmlWriter::breakLine()
{
    if (pay(kInlineCost))
        m_text.appendMarkup(QStringLiteral("<br>"), true);
    else
        m_text.appendBlank();
}

QString SafeHtmlWriter::finished()
{
    popTo(0);
    return m_text.html();
}

void SafeHtmlWriter::push(const KnownTag &known, int cost, const QString &attributes,
                          bool isWritten)
{
    const bool separates = isBlock(known.role);
    if (m_open.size() >= kMaxDepth || (isWritten && !pay(cost))) {
        if (separates)
            m_text.appendBlank();
        return;
    }
    const QString name = writtenName(known);
    m_open.push_back({known.role, name, isWritten});
    if (isWritten)
        m_text.appendMarkup(QLatin1Char('<') + name + attributes + QLatin1Char('>'), separates);
}

void SafeHtmlWriter::pop()
{
    const OpenTag &top = m_open.back();
    if (top.isWritten)
        m_text.appendMarkup(QStringLiteral("</") + top.name + QLatin1Char('>'), isBlock(top.role));
    m_open.pop_back();
}

void SafeHtmlWriter::popTo(std::size_t depth)
{
    while (m_open.size() > depth)
        pop();
}

// No block can stand in a paragraph: the next one ends it, closing tag or not.
void SafeHtmlWriter::endParagraph()
{
    for (std::size_t depth = m_open.size(); depth > 0; --depth) {
        const Role role = m_open[depth - 1].role;
        if (role == Role::Paragraph)
            return popTo(depth - 1);
        if (isBlock(role))
            return;
    }
}

void SafeHtmlWriter::openListItem(const KnownTag &known)
{
    for (std::size_t depth = m_open.size(); depth > 0; --depth) {
        const Role role = m_open[depth - 1].role;
        if (role == Role::ListItem)
            popTo(depth - 1);
        if (role == Role::ListItem || role == Role::List)
            return push(known, kListItemCost, QString());
    }
    breakLine();
}

bool SafeHtmlWriter::pay(int cost)
{
    if (m_budget < cost)
        return false;
    m_budget -= cost;
    return true;
}

bool isLineEnd(uint character)
{
    return character == '\n' || character == '\r' || character == QChar::LineSeparator
           || character == QChar::ParagraphSeparator;
}

void writeTag(SafeHtmlWriter *writer, HtmlScanner *scanner)
{
    const HtmlTag &tag = scanner->tag();
    const KnownTag *known = findTag(tag.name);
    if (!known)
        return;
    if (tag.isClosing)
        return writer->close(*known);
    if (known->role == Role::Hidden)
        return scanner->skipContents();
    writer->open(*known, tag);
}

} // namespace

QString OmSafeHtml::fromHtml(const QString &html)
{
    HtmlScanner scanner(html);
    SafeHtmlWriter writer(static_cast<int>(html.size()));
    for (;;) {
        switch (scanner.next()) {
        case HtmlScanner::Piece::Character:
            writer.text().appendCharacter(scanner.character());
            break;
        case HtmlScanner::Piece::Entity:
            writer.text().appendEntity(scanner.entity());
            break;
        case HtmlScanner::Piece::Tag:
            writeTag(&writer, &scanner);
            break;
        case HtmlScanner::Piece::End:
            return writer.finished();
        }
    }
}

QString OmSafeHtml::fromPlainText(const QString &text)
{
    SafeHtmlWriter writer(static_cast<int>(text.size()));
    HtmlScanner scanner(text, HtmlScanner::Syntax::PlainText);
    bool followsReturn = false;
    while (scanner.next() != HtmlScanner::Piece::End) {
        const uint character = scanner.character();
        if (isLineEnd(character)) {
            if (character != '\n' || !followsReturn)
                writer.breakLine();
        } else {
            writer.text().appendVerbatim(character);
        }
        followsReturn = character == '\r';
    }
    return writer.finished();
}

} // namespace ombrin
