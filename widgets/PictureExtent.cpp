#include "widgets/PictureExtent.h"

#include <QtCore/QIODevice>
#include <QtCore/QtEndian>
#include <QtGui/QImageReader>

namespace ombrin {

namespace {

// A GIF file begins with its version and the size of its screen.
constexpr int kScreenOffset = 6;
constexpr int kHeaderBytes = kScreenOffset + 2 * int(sizeof(quint16));

QSize screenOfGif(const QByteArray &header)
{
    if (header.size() < kHeaderBytes || !header.startsWith("GIF8"))
        return QSize(0, 0);
    const char *screen = header.constData() + kScreenOffset;
    return {qFromLittleEndian<quint16>(screen),
            qFromLittleEndian<quint16>(screen + sizeof(quint16))};
}

} // namespace

QSize pictureExtent(QImageReader *reader)
{
    QByteArray header;
    if (reader->canRead() && reader->device())
        header = reader->device()->peek(kHeaderBytes);
    const QSize size = reader->size();
    return size.isEmpty() ? size : size.expandedTo(screenOfGif(header));
}

} // namespace ombrin
