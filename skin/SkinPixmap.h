#pragma once

#include <ombrin/OmGlobal.h>

#include <QtGui/QImage>
#include <QtGui/QPixmap>

namespace ombrin {

/// Widest and highest picture, in pixels, that a skin may hold. A larger one is refused before it
/// is decoded.
constexpr int kMaxSkinImageExtent = 4096;

/// The skin picture \a path for a screen of \a devicePixelRatio (0: the application's highest).
///
/// The one way in which a skin picture is loaded. On a screen denser than 1 the variant
/// \c path\@2x or \c path\@3x (before the suffix, if \a path has one) is taken when there is one,
/// and the picture carries its density: its logical size is size() / devicePixelRatio(). The result
/// is kept in QPixmapCache. A picture that is missing, broken or too large is null.
OMBRIN_AUTOTEST_EXPORT QPixmap skinPixmap(const QString &path, qreal devicePixelRatio = 0);

/// The same picture as an image, decoded anew at each call.
OMBRIN_AUTOTEST_EXPORT QImage skinImage(const QString &path, qreal devicePixelRatio = 0);

} // namespace ombrin
