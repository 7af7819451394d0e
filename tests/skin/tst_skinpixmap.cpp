#include "support/Files.h"
#include "support/WidgetEvents.h"

#include "skin/SkinPixmap.h"

#include <cmath>

using namespace ombrin;
using namespace ombrin::test;

namespace {

constexpr QSize kSize(6, 4);

QColor colorOf(int density)
{
    return QColor(10 * density, 20 * density, 30 * density);
}

QByteArray encoded(const QImage &image, const char *format = "PNG")
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return bytes;
}

QByteArray variantFile(int density)
{
    return encoded(flatImage(kSize * density, colorOf(density), QImage::Format_RGB32));
}

// Of the right size, cut in the middle of its contents.
QByteArray truncatedPng()
{
    QImage image(64, 64, QImage::Format_RGB32);
    for (int i = 0; i < 64 * 64; ++i)
        image.setPixel(i % 64, i / 64, static_cast<QRgb>(i) * static_cast<QRgb>(i) * 7919u);
    const QByteArray bytes = encoded(image);
    return bytes.left(bytes.size() / 2);
}

} // namespace

class tst_SkinPixmap : public ombrin::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void picksTheVariantForTheScreen_data()
    {
        // present: Densities of the files there are.
        // expected: a density, or 0 for no picture
        const auto row = columns<QString, double, int>("present", "screen", "expected");

        row("all, 1", "123", 1.0, 1);
        row("all, 1.25", "123", 1.25, 2);
        row("all, 2.5", "123", 2.5, 3);
        row("all, absurd", "123", 1e300, 3);
        row("all, infinite", "123", std::numeric_limits<double>::infinity(), 3);
        row("no 3x, 3", "12", 3.0, 2);
        row("no 2x, 2", "13", 2.0, 1);
        row("only 1x, 3", "1", 3.0, 1);
        row("only 2x, 1", "2", 1.0, 0);
    }
    void picksTheVariantForTheScreen()
    {
        QFETCH(QString, present);
        QFETCH(double, screen);
        QFETCH(int, expected);
        const QString names[] = {"icon"_q, "icon@2x"_q, "icon@3x"_q};
        for (int density = 1; density <= 3; ++density) {
            if (present.contains(QString::number(density)))
                write(names[density - 1], variantFile(density));
        }
        const QPixmap pixmap = skinPixmap(path(names[0]), screen);
        QCOMPARE(pixmap.isNull(), expected == 0);
        QCOMPARE(skinImage(path(names[0]), screen).isNull(), expected == 0);
        if (expected == 0)
            return;
        QCOMPARE(pixmap.devicePixelRatio(), double(expected));
        QCOMPARE(pixmap.size(), kSize * expected);
        QCOMPARE(pixmap.toImage().pixelColor(1, 1), colorOf(expected));
        QCOMPARE(skinImage(path(names[0]), screen), pixmap.toImage());
    }

    void suffixesAndFoldersWithDotsAreRespected()
    {
        for (const char *pattern :
             {"countdown-3%1.png", "chat-16%1", "skin.d/chat-16%1", "skin.d/countdown%1.png"}) {
            const QString name = QString::fromLatin1(pattern).arg(QString());
            write(name, variantFile(1));
            write(QString::fromLatin1(pattern).arg("@2x"_q), variantFile(2));
            QCOMPARE(skinPixmap(path(name), 2).toImage().pixelColor(0, 0), colorOf(2));
            QCOMPARE(skinPixmap(path(name), 1).toImage().pixelColor(0, 0), colorOf(1));
        }
    }

    void withoutAScreenTheDensestOneCounts()
    {
        const QString icon = write("icon"_q, variantFile(1));
        write("icon@2x"_q, variantFile(2));
        const double expected = std::ceil(qApp->devicePixelRatio());
        QCOMPARE(skinPixmap(icon).devicePixelRatio(), expected);
        QCOMPARE(skinPixmap(icon, -1).devicePixelRatio(), expected);
        QCOMPARE(skinPixmap(icon, std::numeric_limits<double>::quiet_NaN()).devicePixelRatio(),
                 expected);
    }

    void atDensityOneItIsQPixmap_data()
    {
        const auto row = columns<QString, QString, QByteArray>("file", "name", "format");
        row("translucent", "icon", "icon", "PNG");
        row("bitmap", "icon", "icon", "BMP");
        row("wrong suffix", "icon.jpg", "icon.jpg", "PNG");
        row("suffix left out", "icon.png", "icon", "PNG");
        row("variant by name", "icon@2x", "icon@2x", "PNG");
    }
    void atDensityOneItIsQPixmap()
    {
        QFETCH(QString, file);
        QFETCH(QString, name);
        QFETCH(QByteArray, format);
        QImage image(16, 16, QImage::Format_ARGB32);
        for (int i = 0; i < 256; ++i)
            image.setPixel(i % 16, i / 16, qRgba(i % 16 * 16, i, 128, i % 16 * 17));
        write(file, encoded(image, format));

        const QPixmap expected(path(name));
        QVERIFY(!expected.isNull());
        const QPixmap actual = skinPixmap(path(name), 1);
        QCOMPARE(actual.toImage(), expected.toImage());
        QCOMPARE(actual.toImage().format(), expected.toImage().format());
        QCOMPARE(actual.hasAlpha(), expected.hasAlpha());
        QCOMPARE(actual.devicePixelRatio(), expected.devicePixelRatio());
    }

    void unusablePicturesAreNull()
    {
        for (const QByteArray &bytes : {QByteArray(), QByteArray("[Active]\nWindow=#fff\n"),
                                        variantFile(1).left(20), truncatedPng()}) {
            expectWarning("libpng|PNG"_q);
            const QString icon = write("icon"_q, bytes);
            for (const int density : {1, 2, 3}) {
                QVERIFY(skinPixmap(icon, density).isNull());
                QVERIFY(skinImage(icon, density).isNull());
            }
            QVERIFY(skinPixmap(icon + "-missing"_q, 1).isNull());
            QVERIFY(skinPixmap(m_folder->path(), 1).isNull());
            QVERIFY(skinPixmap(QString(), 2).isNull());
        }
    }

    void tooLargeVariantsFallBack()
    {
        // Flat pictures of a real resource file, packed by the build: "wide" is 2000 x 1 logical
        // pixels, so that its densest variant is refused.
        const QString file = QCoreApplication::applicationDirPath() + "/testdata/pictures.res"_q;
        QVERIFY(QResource::registerResource(file));
        const QString wide = ":/wide"_q;
        QVERIFY(!QPixmap(":/wide@3x"_q).isNull());
        QCOMPARE(skinPixmap(wide, 3).devicePixelRatio(), 2.0);
        QCOMPARE(skinPixmap(wide, 3).size(), QSize(4000, 2));
        QCOMPARE(skinPixmap(":/suffixed.png"_q, 3).size(), QSize(36, 30));
        QVERIFY(!QPixmap(":/huge"_q).isNull());
        QVERIFY(skinPixmap(":/huge"_q, 1).isNull());
        QVERIFY(QResource::unregisterResource(file));
    }

    void secondLoadReadsNoFile()
    {
        QVERIFY(skinPixmap(path("icon"_q), 1).isNull()); // it is not there yet
        const QString icon = write("icon"_q, variantFile(1));
        write("icon@2x"_q, variantFile(2));
        QVERIFY(!skinPixmap(icon, 1).isNull());
        QPixmapCache::clear();
        const QPixmap normal = skinPixmap(icon, 1); // filled again
        const QPixmap dense = skinPixmap(icon, 2);
        QVERIFY(QFile::remove(icon) && QFile::remove(icon + "@2x"_q));
        QCOMPARE(skinPixmap(icon, 1).cacheKey(), normal.cacheKey());
        QCOMPARE(skinPixmap(icon, 2).cacheKey(), dense.cacheKey());
        QPixmapCache::clear();
        QVERIFY(skinPixmap(icon, 1).isNull());
    }

protected:
    void setUp() override
    {
        QPixmapCache::clear();
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(m_folder->isValid());
    }

    void tearDown() override { m_folder.reset(); }

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }

    QString write(const QString &name, const QByteArray &bytes) const
    {
        QDir().mkpath(QFileInfo(path(name)).path());
        writeFile(path(name), bytes);
        return path(name);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

OMBRIN_TEST_MAIN(tst_SkinPixmap)
#include "tst_skinpixmap.moc"
