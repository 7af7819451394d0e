#include "CountingImageFormat.h"

#include <QtCore/QDataStream>
#include <QtCore/QIODevice>
#include <QtCore/QtPlugin>
#include <QtGui/QImage>
#include <QtGui/QImageIOHandler>
#include <QtGui/QImageIOPlugin>

namespace counting_image_format {

namespace {

const QByteArray kMagic("counting");
int g_decodedCount = 0;

class Handler : public QImageIOHandler
{
public:
    bool canRead() const override { return device()->peek(kMagic.size()) == kMagic; }

    bool supportsOption(ImageOption option) const override { return option == Size; }

    QVariant option(ImageOption option) const override
    {
        if (option != Size)
            return QVariant();
        QSize size;
        QDataStream stream(device()->peek(kMagic.size() + 8).mid(kMagic.size()));
        stream >> size;
        return size;
    }

    bool read(QImage *image) override
    {
        ++g_decodedCount;
        *image = QImage(1, 1, QImage::Format_RGB32);
        image->fill(Qt::green);
        return true;
    }
};

} // namespace

QByteArray file(const QSize &size)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << size;
    return kMagic + bytes;
}

int decodedCount()
{
    return g_decodedCount;
}

} // namespace counting_image_format

class CountingImagePlugin : public QImageIOPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QImageIOHandlerFactoryInterface_iid FILE "CountingImageFormat.json")

public:
    Capabilities capabilities(QIODevice *device, const QByteArray &format) const override
    {
        const bool canRead = format.isEmpty() && device
                             && device->peek(counting_image_format::kMagic.size())
                                        == counting_image_format::kMagic;
        return canRead || format == "counting" ? Capabilities(CanRead) : Capabilities();
    }

    QImageIOHandler *create(QIODevice *device, const QByteArray &format) const override
    {
        auto *const handler = new counting_image_format::Handler;
        handler->setDevice(device);
        handler->setFormat(format);
        return handler;
    }
};

Q_IMPORT_PLUGIN(CountingImagePlugin)

#include "CountingImageFormat.moc"
