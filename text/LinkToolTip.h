#pragma once

#include <ombrin/OmGlobal.h>

#include <QtCore/QString>

namespace ombrin {

/// Longest part of a link, in characters, that a tool tip shows.
constexpr int kMaxShownLink = 200;

/// The part \a text of a link, which may come from other people, as it may be shown: without
/// characters that are not seen or turn the direction of writing, and not endless.
QString shownLink(const QString &text);

/// \a text as a tool tip that shows it as it is, even where it looks like rich text.
QString plainToolTip(const QString &text);

} // namespace ombrin
