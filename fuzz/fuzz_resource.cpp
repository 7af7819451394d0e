// A skin's resource file: what isIntactResourceFile() lets through must not harm Qt, which follows
// its offsets unchecked.

#include "FuzzTarget.h"

#include "skin/ResourceFile.h"
#include "skin/SkinPixmap.h"

#include <QtCore/QDirIterator>
#include <QtCore/QFile>
#include <QtCore/QResource>
#include <QtCore/QtEndian>
#include <QtGui/QPixmapCache>

namespace {

constexpr int kMostFiles = 200;

QString fileName()
{
    return ombrin::fuzz::folder().filePath(QStringLiteral("skin.res"));
}

void readAll(const QString &root)
{
    int files = 0;
    QDirIterator found(root, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (found.hasNext() && files++ < kMostFiles) {
        const QString path = found.next();
        QFile file(path);
        if (file.open(QIODevice::ReadOnly) && file.size() <= 1024 * 1024)
            file.readAll();
        ombrin::skinPixmap(path, 2.0);
    }
}

// Whether Qt registers the file. One that it refuses stays mapped for ever.
bool isKnownToQt(const QByteArray &file)
{
    constexpr int kOffsets[] = {8, 12, 16};
    constexpr int kHeaderSize = 24;
    if (file.size() < kHeaderSize)
        return false;
    const auto number = [&file](int at) { return qFromBigEndian<quint32>(file.constData() + at); };
    for (const int offset : kOffsets) {
        if (number(offset) >= static_cast<quint32>(file.size()))
            return false;
    }
    const quint32 format = number(4);
    const quint32 packing = number(20);
    return format == 1 || format == 2 || (format == 3 && packing == 0);
}

void run(ombrin::fuzz::Input input)
{
    const QString name = fileName();
    const QByteArray file = input.rest();
    // Written anew: a file that Qt has mapped must not change.
    QFile::remove(name);
    ombrin::fuzz::writeFile(name, file);
    if (!ombrin::isIntactResourceFile(name))
        return;
    const QString root = QStringLiteral("/fuzz");
    if (!isKnownToQt(file) || !QResource::registerResource(name, root))
        return;
    readAll(QLatin1Char(':') + root);
    QPixmapCache::clear();
    QResource::unregisterResource(name, root);
}

} // namespace

OMBRIN_FUZZ_TARGET(run)
