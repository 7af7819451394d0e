#pragma once

#include <ombrin/OmGlobal.h>

#include <QtCore/QSize>
#include <QtGui/QRegion>

class QImage;

namespace ombrin {

/// The size of \a image in logical pixels, rounded up.
OMBRIN_AUTOTEST_EXPORT QSize logicalSize(const QImage &image);

/// The logical pixels in which \a image has a pixel that is not fully transparent: at a device
/// pixel ratio of 1 exactly the pixels whose alpha is not 0.
OMBRIN_AUTOTEST_EXPORT QRegion imageShape(const QImage &image);

} // namespace ombrin
