#pragma once

#include <QtCore/QString>

/// \a text, which is in UTF-8.
inline QString operator""_q(const char *text, std::size_t length)
{
    return QString::fromUtf8(text, static_cast<int>(length));
}
