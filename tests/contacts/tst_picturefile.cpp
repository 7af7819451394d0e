#include "contacts/GifWriter.h"
#include "support/TestCase.h"

#include "contacts/PictureFile.h"

#include <QtCore/QBuffer>
#include <QtCore/QDir>
#include <QtCore/QTemporaryDir>
#include <QtGui/QImage>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

using ombrin::PictureFile;

namespace {

QByteArray encoded(const QSize &size, const char *format)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::red);
    QBuffer buffer;
    image.save(&buffer, format);
    return buffer.data();
}

QByteArray bigEndian(quint32 value)
{
    QByteArray bytes;
    for (int shift = 24; shift >= 0; shift -= 8)
        bytes.append(static_cast<char>(value >> shift & 0xff));
    return bytes;
}

// A picture of some bytes that claims to have \a size.
QByteArray hugePng(const QSize &size)
{
    QByteArray png = encoded(QSize(1, 1), "png");
    png.replace(16, 4, bigEndian(quint32(size.width())));
    png.replace(20, 4, bigEndian(quint32(size.height())));
    // The checksum of the header has to be right, or its size is not told.
    quint32 sum = 0xffffffff;
    for (int at = 12; at < 29; ++at) {
        sum ^= static_cast<uchar>(png.at(at));
        for (int bit = 0; bit < 8; ++bit)
            sum = sum >> 1 ^ (sum & 1 ? 0xedb88320 : 0);
    }
    png.replace(29, 4, bigEndian(~sum));
    return png;
}

} // namespace

class tst_PictureFile : public ombrin::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void onlyOrdinaryPicturesOfOrdinarySizeAreReadable_data()
    {
        QTest::addColumn<QByteArray>("contents");
        QTest::addColumn<bool>("isReadable");
        QTest::addColumn<bool>("isAnimation");
        QTest::addColumn<qint64>("animationBytes");

        const auto still = [](const char *name, const QByteArray &contents, bool isReadable) {
            QTest::newRow(name) << contents << isReadable << false << qint64(-1);
        };
        still("png", encoded(QSize(30, 20), "png"), true);
        still("jpeg", encoded(QSize(30, 20), "jpg"), true);
        still("widest", hugePng(QSize(4096, 1)), true);
        still("too wide", hugePng(QSize(4097, 1)), false);
        still("too high", hugePng(QSize(1, 4097)), false);
        still("absurd", hugePng(QSize(30000, 30000)), false);
        still("most absurd", hugePng(QSize(0x7fffffff, 0x7fffffff)), false);
        still("text", QByteArray("no picture"), false);
        still("nothing", QByteArray(), false);
        still("animation, absurd", gif_writer::animation(QSize(65535, 65535), QSize(6554, 1)),
              false);
        QTest::newRow("animation") << gif_writer::animation(QSize(30, 20), QSize(30, 20)) << true
                                   << true << qint64(2 * 30 * 20 * 4);
        QTest::newRow("animation, large")
                << gif_writer::animation(QSize(4096, 2100), QSize(410, 210)) << true << true
                << qint64(2 * 4096 * 2100 * 4);
    }

    void onlyOrdinaryPicturesOfOrdinarySizeAreReadable()
    {
        QFETCH(QByteArray, contents);
        QFETCH(bool, isReadable);
        QFETCH(bool, isAnimation);
        QFETCH(qint64, animationBytes);
        expectWarning(QStringLiteral("libpng"));
        QTemporaryFile file;
        QVERIFY(file.open());
        file.write(contents);
        file.close();
        const PictureFile seen = PictureFile::inspect(file.fileName());
        QCOMPARE(seen.isReadable, isReadable);
        QCOMPARE(seen.isAnimation, isAnimation);
        QCOMPARE(seen.animationBytes, animationBytes);
    }

    void whatIsNoFileIsNotOpened()
    {
        const QTemporaryDir folder;
        QVERIFY(!PictureFile::inspect(folder.path()).isReadable);
        QVERIFY(!PictureFile::inspect(QString()).isReadable);
        QVERIFY(!PictureFile::inspect(folder.filePath(QStringLiteral("missing"))).isReadable);
#ifdef Q_OS_UNIX
        // Nobody will ever write into it.
        const QString pipe = folder.filePath(QStringLiteral("pipe.png"));
        QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        QVERIFY(!PictureFile::inspect(pipe).isReadable);
#endif
    }
};

OMBRIN_TEST_MAIN(tst_PictureFile)
#include "tst_picturefile.moc"
