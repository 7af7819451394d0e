#include "skin/SkinPixmap.h"

#include <QtCore/QHash>
#include <QtGui/QGuiApplication>
#include <QtGui/QImageReader>
#include <QtGui/QPixmapCache>

#include <algorithm>
#include <cmath>

namespace ombrin {

namespace {

constexpr int kMaxDensity = 3;

int densityFor(qreal devicePixelRatio)
{
    // Also when it is not a number.
    if (!(devicePixelRatio > 0))
        devicePixelRatio = qApp ? qApp->devicePixelRatio() : 1.0;
    return std::clamp(static_cast<int>(std::ceil(std::min(devicePixelRatio, 16.0))), 1,
                      kMaxDensity);
}

QString variantPath(const QString &path, int density)
{
    if (density == 1)
        return path;
    const int dot = static_cast<int>(path.lastIndexOf(QLatin1Char('.')));
    const int slash = static_cast<int>(path.lastIndexOf(QLatin1Char('/')));
    QString variant = path;
    return variant.insert(dot > slash ? dot : static_cast<int>(path.size()),
                          QStringLiteral("@%1x").arg(density));
}

QImage readLimited(const QString &path)
{
    QImageReader reader(path);
    // Skin files have no suffix to tell their format by.
    reader.setDecideFormatFromContent(true);
    const QSize size = reader.size();
    if (size.isEmpty() || size.width() > kMaxSkinImageExtent || size.height() > kMaxSkinImageExtent)
        return QImage();
    return reader.read();
}

QImage loadAtDensity(const QString &path, int density)
{
    if (path.isEmpty())
        return QImage();
    for (int candidate = density; candidate >= 1; --candidate) {
        QImage image = readLimited(variantPath(path, candidate));
        if (image.isNull())
            continue;
        if (candidate > 1)
            image.setDevicePixelRatio(candidate);
        return image;
    }
    return QImage();
}

} // namespace

QPixmap skinPixmap(const QString &path, qreal devicePixelRatio)
{
    // Keys instead of names: a look-up by QPixmapCache::Key hashes no long string.
    static QHash<QString, QPixmapCache::Key> keys[kMaxDensity];

    const int density = densityFor(devicePixelRatio);
    QHash<QString, QPixmapCache::Key> &known = keys[density - 1];
    QPixmap pixmap;
    const auto found = known.constFind(path);
    if (found != known.constEnd() && QPixmapCache::find(*found, &pixmap))
        return pixmap;

    pixmap = QPixmap::fromImage(loadAtDensity(path, density));
    if (!pixmap.isNull())
        known.insert(path, QPixmapCache::insert(pixmap));
    return pixmap;
}

QImage skinImage(const QString &path, qreal devicePixelRatio)
{
    return loadAtDensity(path, densityFor(devicePixelRatio));
}

} // namespace ombrin
