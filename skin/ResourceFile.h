#pragma once

#include <ombrin/OmGlobal.h>

#include <QtCore/QString>

namespace ombrin {

/// Whether everything in the binary resource file \a path (names, folders, lengths of the files in
/// it) lies within the file.
///
/// Qt maps such a file into memory and follows its offsets unchecked, so that a truncated or
/// damaged file, once registered, crashes the program at some later look-up. False also when the
/// file is missing. Formats newer than the known ones are left to Qt and called intact.
OMBRIN_AUTOTEST_EXPORT bool isIntactResourceFile(const QString &path);

} // namespace ombrin
