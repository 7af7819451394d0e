#include "model/PictureFiles.h"

#include <QtCore/QBuffer>
#include <QtCore/QCryptographicHash>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QSaveFile>
#include <QtCore/QtEndian>
#include <QtGui/QImageReader>

#include <algorithm>
#include <array>

namespace messenger {

namespace {

constexpr qint64 kLargestFile = 16 << 20;
constexpr QSize kLargestExtent(4096, 4096);
constexpr int kJpegQuality = 88;

constexpr std::array<const char *, 6> kFormats = {"png", "jpeg", "jpg", "gif", "bmp", "webp"};

bool isBitmapFormat(const QByteArray &format)
{
    return std::any_of(kFormats.begin(), kFormats.end(),
                       [&format](const char *known) { return format == known; });
}

QByteArray encoded(const QImage &picture, const char *format, int quality)
{
    QByteArray data;
    QBuffer buffer(&data);
    buffer.open(QIODevice::WriteOnly);
    return picture.save(&buffer, format, quality) ? data : QByteArray();
}

// What a GIF file says of its screen, for which its decoder takes memory; the reader may say less.
QSize screenOfGif(QIODevice *device)
{
    const QByteArray header = device->peek(10);
    if (header.size() < 10 || !header.startsWith("GIF8"))
        return QSize(0, 0);
    return {qFromLittleEndian<quint16>(header.constData() + 6),
            qFromLittleEndian<quint16>(header.constData() + 8)};
}

} // namespace

QImage readPicture(QIODevice *device)
{
    if (!device || device->size() > kLargestFile)
        return QImage();
    const QSize screen = screenOfGif(device);
    QImageReader reader(device);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    if (!isBitmapFormat(reader.format()))
        return QImage();
    // Asked for before anything is decoded: a small file can hold an enormous picture.
    const QSize size = reader.size();
    if (size.isEmpty() || screen.boundedTo(kLargestExtent) != screen
        || size.boundedTo(kLargestExtent) != size)
        return QImage();
    return reader.read();
}

QImage readPicture(const QString &fileName)
{
    QFile file(fileName);
    if (!QFileInfo(fileName).isFile() || !file.open(QIODevice::ReadOnly))
        return QImage();
    return readPicture(&file);
}

QImage pictureFromData(const QByteArray &data)
{
    QBuffer buffer;
    buffer.setData(data);
    buffer.open(QIODevice::ReadOnly);
    return readPicture(&buffer);
}

QByteArray pictureToData(const QImage &picture, int largest)
{
    if (picture.isNull())
        return QByteArray();
    QImage smaller =
            picture.width() > kLargestExtent.width() || picture.height() > kLargestExtent.height()
                    ? picture.scaled(kLargestExtent, Qt::KeepAspectRatio, Qt::SmoothTransformation)
                    : picture;
    QByteArray data = encoded(smaller, "png", -1);
    while (data.size() > largest && smaller.width() > 1 && smaller.height() > 1) {
        data = encoded(smaller, "jpg", kJpegQuality);
        smaller = smaller.scaled(smaller.size() * 2 / 3, Qt::KeepAspectRatio,
                                 Qt::SmoothTransformation);
    }
    return data.size() <= largest ? data : QByteArray();
}

QImage portraitFrom(const QImage &picture, int extent)
{
    if (picture.isNull())
        return QImage();
    const int side = std::min(picture.width(), picture.height());
    const QImage square =
            picture.copy((picture.width() - side) / 2, (picture.height() - side) / 2, side, side);
    if (side <= extent)
        return square;
    return square.scaled(extent, extent, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

QString keepPicture(const QString &folder, const QByteArray &data)
{
    if (data.isEmpty())
        return QString();
    // Named by its contents: what is sent twice is kept once.
    const QByteArray digest =
            QCryptographicHash::hash(data, QCryptographicHash::Sha256).toHex().left(32);
    const bool isPng = data.startsWith("\x89PNG");
    const QString name =
            QString::fromLatin1(digest) + (isPng ? QStringLiteral(".png") : QStringLiteral(".jpg"));
    QSaveFile file(QDir(folder).filePath(name));
    if (!file.open(QIODevice::WriteOnly))
        return QString();
    file.write(data);
    return file.commit() ? name : QString();
}

} // namespace messenger
