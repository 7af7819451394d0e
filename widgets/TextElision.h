#pragma once

#include <ombrin/OmGlobal.h>

#include <QtCore/QString>

class QFontMetrics;

namespace ombrin {

/// \a text shortened to \a width pixels: the result of QFontMetrics::elidedText(), but in a time
/// that depends on the width and not on how long the text is.
OMBRIN_AUTOTEST_EXPORT QString elidedText(const QFontMetrics &metrics, const QString &text,
                                          Qt::TextElideMode mode, int width);

} // namespace ombrin
