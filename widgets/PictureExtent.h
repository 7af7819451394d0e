#pragma once

#include <ombrin/OmGlobal.h>

#include <QtCore/QSize>

class QImageReader;

namespace ombrin {

/// The size that decoding \a reader's picture takes memory for, known before anything is decoded;
/// empty where there is no picture. QImageReader::size() alone believes less of a GIF file than its
/// decoder does, which a file of a hundred bytes can use to fill gigabytes.
OMBRIN_AUTOTEST_EXPORT QSize pictureExtent(QImageReader *reader);

} // namespace ombrin
