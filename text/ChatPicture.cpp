#include "text/ChatPicture.h"

#include "widgets/PictureExtent.h"

#include <ombrin/OmDir.h>

#include <QtCore/QBuffer>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtGui/QImageReader>

namespace ombrin {

namespace {

// Others, such as drawings, can name further files or take any time to be drawn.
bool isBitmapFormat(const QByteArray &format)
{
    static const QList<QByteArray> kFormats = {"png", "jpg", "jpeg", "gif", "bmp", "webp", "ico"};
    return kFormats.contains(format.toLower());
}

QImage decoded(QIODevice *device)
{
    QImageReader reader(device);
    reader.setDecideFormatFromContent(true);
    if (!isBitmapFormat(reader.format()))
        return QImage();
    if (!isSafeExtent(pictureExtent(&reader)))
        return QImage();
    reader.setAutoTransform(true);
    return reader.read();
}

// "data:image/png;base64,..."
QByteArray embeddedData(const QUrl &source)
{
    const QByteArray url = source.toEncoded(QUrl::RemoveFragment).mid(int(qstrlen("data:")));
    if (url.size() > 2 * kMaxChatPictureBytes)
        return QByteArray();
    const int comma = static_cast<int>(url.indexOf(','));
    if (comma < 0)
        return QByteArray();
    const QByteArray payload = QByteArray::fromPercentEncoding(url.mid(comma + 1));
    const bool isBase64 = url.left(comma).trimmed().endsWith(";base64");
    return isBase64 ? QByteArray::fromBase64(payload) : payload;
}

// Another machine would learn of it.
bool isOnNetwork(const QString &file)
{
    return QDir::fromNativeSeparators(file).startsWith(QStringLiteral("//"));
}

// A path that was taken for an address can hold what an address ends with.
QString wholePath(const QUrl &source)
{
    QString path = source.path(QUrl::FullyDecoded);
    if (source.hasQuery())
        path += QLatin1Char('?') + source.query(QUrl::FullyDecoded);
    if (source.hasFragment())
        path += QLatin1Char('#') + source.fragment(QUrl::FullyDecoded);
    return path;
}

QString localFile(const QUrl &source)
{
    if (!source.host().isEmpty())
        return QString();
    const QString scheme = source.scheme();
    if (scheme == QLatin1String("qrc"))
        return QLatin1Char(':') + source.path();
#ifdef Q_OS_WIN
    if (scheme.size() == 1) // a drive
        return scheme + QLatin1Char(':') + wholePath(source);
#endif
    if (scheme == QLatin1String("file"))
        return source.toLocalFile();
    return scheme.isEmpty() ? wholePath(source) : QString();
}

} // namespace

QString chatPictureFile(const QUrl &source)
{
    const QString file = localFile(source);
    if (file.isEmpty() || file.contains(QChar::Null) || isOnNetwork(file))
        return QString();
    // What has no size may have no end: some of a system's files only look ordinary.
    const QFileInfo info(file);
    const bool isReadable = info.isFile() && info.size() > 0 && info.size() <= kMaxChatPictureBytes;
    return isReadable ? file : QString();
}

QImage readChatPicture(const QUrl &source)
{
    if (source.scheme() == QLatin1String("data")) {
        QByteArray data = embeddedData(source);
        QBuffer buffer(&data);
        return buffer.open(QIODevice::ReadOnly) ? decoded(&buffer) : QImage();
    }
    const QString name = chatPictureFile(source);
    if (name.isEmpty())
        return QImage();
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? decoded(&file) : QImage();
}

void addToSmileys(const QUrl &source)
{
    const QString name = chatPictureFile(source);
    QFile file(name);
    if (name.isEmpty() || !file.open(QIODevice::ReadOnly))
        return;
    const QByteArray data = file.read(kMaxChatPictureBytes);
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    const quint16 checksum = qChecksum(data);
#else
    const quint16 checksum = qChecksum(data.constData(), static_cast<uint>(data.size()));
#endif
    const QString copy = QStringLiteral("%1/%2").arg(OmDir::smileysPath(true)).arg(checksum);
    QFile::copy(name, copy);
}

QUrl pictureUrl(const QString &name)
{
    if (name.startsWith(QLatin1Char(':')))
        return QUrl(QStringLiteral("qrc") + name);
    const QUrl url(name);
    const bool isPath = url.scheme().isEmpty() || url.scheme().size() == 1;
    return isPath ? QUrl::fromLocalFile(name) : url;
}

} // namespace ombrin
