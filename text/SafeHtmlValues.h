#pragma once

#include <QtCore/QString>

namespace ombrin {

struct HtmlTag;

/// What may be written as the target of a link to \a link, or nothing if it leads where it must
/// not.
QString safeLink(const QString &link);

/// The declarations of \a tag, of its style and its colour, that only change how a text looks.
QString safeStyle(const HtmlTag &tag);

} // namespace ombrin
