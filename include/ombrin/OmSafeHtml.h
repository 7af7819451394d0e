#pragma once

#include <ombrin/OmGlobal.h>

#include <QtCore/QString>

namespace ombrin {

/// Turns what a stranger sent into rich text that may be shown. Holds static functions only.
///
/// A chat must never hand a stranger's own HTML to a text widget: it names files to be read, draws
/// what looks like the program itself, and a few hundred bytes of it occupy the program for
/// minutes.
///
/// \code
/// history->append(message.isHtml() ? ombrin::OmSafeHtml::fromHtml(message.text())
///                                  : ombrin::OmSafeHtml::fromPlainText(message.text()));
/// \endcode
///
/// What comes back is a well-formed fragment of HTML, made anew from what is allowed:
///
/// - text; scripts, style sheets, titles and comments vanish, and characters that are no text:
///   controls, directional overrides, halves of pairs;
/// - \c a with a \c href of one of the schemes http, https, ftp, ftps, sftp, mailto, news, imap,
///   sip, sips and tel, at most 2,000 characters long; links to elsewhere become plain text;
/// - \c b, \c strong, \c i, \c em, \c u, \c s, \c sub, \c sup, \c small, \c big, \c tt, \c code and
///   their like; other tags vanish, and their text stays;
/// - \c br, \c p, \c div, \c h1 to \c h6, \c blockquote, \c ul, \c ol, \c li, \c hr and \c center;
///   tables become lines of text, pictures their \c alt text;
/// - \c font and \c span with a colour, weight, slant or underline; other attributes and styles
///   vanish.
///
/// Its costs are bounded too, so that showing it takes a time in proportion to its length: tags
/// nested deeper than 16 vanish, as do those beyond some thousands in a message of up to 65,536
/// characters; a character keeps at most 8 combining marks; and in a word of hundreds of letters
/// there are invisible places (U+200B) at which a line may be broken, as breaking lines within a
/// word takes long.
///
/// The functions take text of any length, in time in proportion to it, and may be called from
/// several threads at once. How long a message may be is for the host to decide.
///
/// \ingroup text
class OMBRIN_GUI_EXPORT OmSafeHtml
{
public:
    /// The safe part of the fragment or document \a html. What is no well-formed HTML comes back as
    /// a browser would show it, or as the text it is.
    static QString fromHtml(const QString &html);

    /// Rich text that shows \a text as it is, with its line breaks.
    static QString fromPlainText(const QString &text);

    OmSafeHtml() = delete;
};

} // namespace ombrin
