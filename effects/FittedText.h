#pragma once

#include <ombrin/OmGlobal.h>

#include <QtCore/QSize>
#include <QtCore/QString>

class QFont;

namespace ombrin {

/// Plain \a text as it is if it fits \a size pixels in \a font. Otherwise its long lines are broken
/// between words, or within a word that is too long for a line, and what goes beyond the last line
/// is replaced by an ellipsis. At least a part of one line is kept.
OMBRIN_AUTOTEST_EXPORT QString fittedText(const QString &text, const QFont &font,
                                          const QSize &size);

} // namespace ombrin
