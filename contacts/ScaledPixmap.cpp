#include "contacts/ScaledPixmap.h"

#include "skin/SkinPixmap.h"

#include <QtGui/QPixmapCache>

namespace ombrin {

QPixmap scaledPixmap(const QPixmap &pixmap, const QSize &size, qreal devicePixelRatio)
{
    if (pixmap.isNull() || size.isEmpty())
        return QPixmap();
    const QSize logical = pixmap.size().scaled(size, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
    const QSize device = (QSizeF(logical) * devicePixelRatio).toSize().expandedTo(QSize(1, 1));
    QPixmap scaled = pixmap.scaled(device, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    scaled.setDevicePixelRatio(devicePixelRatio);
    return scaled;
}

QPixmap scaledSkinPixmap(const QString &path, const QSize &size, qreal devicePixelRatio)
{
    const QPixmap original = skinPixmap(path, devicePixelRatio);
    if (original.isNull())
        return original;
    // The picture's own key tells one skin from the next.
    const QString key = QStringLiteral("ombrin_scaled_%1_%2_%3_%4")
                                .arg(original.cacheKey())
                                .arg(size.width())
                                .arg(size.height())
                                .arg(devicePixelRatio);
    QPixmap scaled;
    if (QPixmapCache::find(key, &scaled))
        return scaled;
    scaled = scaledPixmap(original, size, devicePixelRatio);
    QPixmapCache::insert(key, scaled);
    return scaled;
}

} // namespace ombrin
