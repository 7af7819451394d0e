#pragma once

#include <QtCore/QString>

namespace ombrin {

/// Whether QSettings finds nothing but text in the palette file \a path.
///
/// A value such as \c \@Variant(...) has QSettings make an object of any registered type from the
/// bytes in the parentheses, and Qt's own types crash on many a sequence of them. No colour begins
/// with an \c \@ or a backslash. False also when the file cannot be read or is far larger than any
/// palette.
bool isPlainPaletteFile(const QString &path);

} // namespace ombrin
