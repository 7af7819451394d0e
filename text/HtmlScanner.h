#pragma once

#include <ombrin/OmGlobal.h>

#include <QtCore/QString>
#include <QtCore/QVector>

namespace ombrin {

/// A tag of HTML: `<name attribute="value">` or `</name>`.
struct HtmlTag
{
    struct Attribute
    {
        QString name;
        QString value;
    };

    /// The value of the attribute \a attributeName, null if there is none.
    QString value(QLatin1String attributeName) const;

    bool isClosing = false;
    QString name; ///< In lower case, as those of the attributes.
    QVector<Attribute> attributes;
};

/// Cuts HTML of any quality into its pieces, in time in proportion to its length.
class HtmlScanner
{
public:
    enum class Piece { Character, Entity, Tag, End };

    /// Plain text has no pieces but characters.
    enum class Syntax { Html, PlainText };

    explicit HtmlScanner(const QString &html, Syntax syntax = Syntax::Html);

    /// Goes on to the next piece. Comments and declarations are none.
    Piece next();

    /// After Piece::Character: what it is.
    uint character() const { return m_character; }
    /// After Piece::Entity: the whole of a name that this class does not know, "&auml;" for
    /// example.
    const QString &entity() const { return m_entity; }
    /// After Piece::Tag.
    const HtmlTag &tag() const { return m_tag; }

    /// Goes on behind the tag that closes the one just read, or to the end if there is none.
    void skipContents();

private:
    bool skipDeclaration();
    bool readTag();
    bool readEntity();
    void readCharacter();
    int endOfTag(int from);
    void readAttributes(int from, int end);
    int findText(const QString &text, int from) const;
    QChar at(int index) const;

    const QString m_html;
    const Syntax m_syntax;
    int m_position = 0;
    bool m_hasTags = true;
    int m_unclosedQuotes = 0;
    uint m_character = 0;
    QString m_entity;
    HtmlTag m_tag;
};

/// \a text with the characters that its entities stand for.
QString withoutEntities(const QString &text);

} // namespace ombrin
