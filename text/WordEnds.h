#pragma once

#include <QtCore/QChar>

namespace ombrin {

/// Whether \a c ends the word before it: what the spelling of the chat input goes by.
constexpr bool isWordEnd(QChar c)
{
    switch (c.unicode()) {
    case u' ':
    case u',':
    case u'?':
    case u'!':
    case u'.':
        return true;
    default:
        return false;
    }
}

} // namespace ombrin
