#pragma once

#include <QtCore/QString>

namespace ombrin {

/// The text of \a html on one line: without formats, without pictures, without white space at its
/// ends; of each run of white space the first character. Loads nothing that \a html refers to.
QString pastedText(const QString &html);

} // namespace ombrin
