#pragma once

#include <ombrin/OmGlobal.h>

#include <QtGui/QPixmap>

namespace ombrin {

/// \a pixmap scaled smoothly to the largest size of its proportions that fits into \a size, for a
/// screen of \a devicePixelRatio. \a size is a logical size, and so is that of the result by way of
/// its device pixel ratio. Null if \a pixmap is null or \a size is empty.
OMBRIN_AUTOTEST_EXPORT QPixmap scaledPixmap(const QPixmap &pixmap, const QSize &size,
                                            qreal devicePixelRatio);

/// The skin picture \a path scaled likewise. All widgets that show it in one size share it.
OMBRIN_AUTOTEST_EXPORT QPixmap scaledSkinPixmap(const QString &path, const QSize &size,
                                                qreal devicePixelRatio);

/// The size that \a pixmap takes on the screen.
inline QSize logicalSize(const QPixmap &pixmap)
{
    return (QSizeF(pixmap.size()) / pixmap.devicePixelRatio()).toSize();
}

} // namespace ombrin
