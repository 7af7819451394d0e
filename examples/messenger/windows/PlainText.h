#pragma once

#include <QtCore/QString>

namespace messenger {

/// What shows \a text as it is, with its line breaks, where rich text is recognised: in tool tips
/// and message boxes. What other people write must never turn into formatting there. Empty for an
/// empty text.
QString asRichText(const QString &text);

} // namespace messenger
