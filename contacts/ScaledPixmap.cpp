#include "contacts/ScaledPixmap.h"

#include "skin/SkinPixmap.h"

#include <QtGui/QPixmapCache>

#include <map>
#include <tuple>

namespace ombrin {

namespace {

// A host that shows the same picture in ever new sizes makes no more than these.
constexpr std::size_t kMaxKnownKeys = 256;

} // namespace

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
    using Source = std::tuple<qint64, int, int, qreal>;
    static std::map<Source, QPixmapCache::Key> keys;
    const Source source(original.cacheKey(), size.width(), size.height(), devicePixelRatio);
    QPixmap scaled;
    const auto found = keys.find(source);
    if (found != keys.end() && QPixmapCache::find(found->second, &scaled))
        return scaled;

    scaled = scaledPixmap(original, size, devicePixelRatio);
    if (keys.size() >= kMaxKnownKeys)
        keys.clear();
    keys[source] = QPixmapCache::insert(scaled);
    return scaled;
}

} // namespace ombrin
