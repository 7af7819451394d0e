#pragma once

#include <ombrin/OmGlobal.h>

#include <QtCore/QSize>

class QImageReader;

namespace ombrin {

/// Widest and highest picture from other people, in pixels, that is decoded.
constexpr int kMaxPictureExtent = 4096;

/// Whether a picture of \a extent is decoded, if it comes from other people.
constexpr bool isSafeExtent(const QSize &extent)
{
    return !extent.isEmpty() && extent.width() <= kMaxPictureExtent
           && extent.height() <= kMaxPictureExtent;
}

/// The size that decoding \a reader's picture takes memory for, known before anything is decoded;
/// empty where there is no picture. QImageReader::size() alone believes less of a GIF file than its
/// decoder does, which a file of a hundred bytes can use to fill gigabytes.
OMBRIN_AUTOTEST_EXPORT QSize pictureExtent(QImageReader *reader);

} // namespace ombrin
