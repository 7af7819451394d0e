#include "support/TestCase.h"
#include "windows/FlatSkin.h"

#include "windows/FramePainter.h"

#include <QtGui/QBitmap>
#include <QtGui/QImage>
#include <QtGui/QPainter>

using namespace ombrin;

namespace {

const QColor kNothing(255, 0, 255);

QImage paintFrame(const QSize &size, qreal density, bool active,
                  const QRegion &exposed = QRegion(-10000, -10000, 20000, 20000))
{
    QImage image((QSizeF(size) * density).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(density);
    image.fill(kNothing);
    QPainter painter(&image);
    FramePainter::paintBorder(&painter, size, active, exposed);
    return image;
}

QRegion shapeFromBitmap(const QSize &size)
{
    QBitmap bitmap(size);
    bitmap.fill(Qt::color1);
    QPainter painter(&bitmap);
    painter.setPen(Qt::color0);
    const int right = size.width() - 1;
    const int bottom = size.height() - 1;
    const QPoint points[] = {{0, 0},
                             {1, 0},
                             {0, 1},
                             {right, 0},
                             {right - 1, 0},
                             {right, 1},
                             {0, bottom},
                             {1, bottom},
                             {0, bottom - 1},
                             {right, bottom},
                             {right - 1, bottom},
                             {right, bottom - 1}};
    painter.drawPoints(points, static_cast<int>(std::size(points)));
    painter.end();
    return QRegion(bitmap);
}

} // namespace

class tst_FramePainter : public ombrin::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(flat_skin::registerSkin()); }

    void eachPieceFillsItsPlace_data()
    {
        QTest::addColumn<bool>("active");
        QTest::addColumn<int>("density");
        for (const bool active : {true, false}) {
            for (const int density : {1, 2, 3}) {
                QTest::addRow("%s at %dx", active ? "active" : "inactive", density)
                        << active << density;
            }
        }
    }

    void eachPieceFillsItsPlace()
    {
        QFETCH(bool, active);
        QFETCH(int, density);
        struct Place
        {
            const char *name;
            QRect rect;
        };
        const Place places[] = {
                {"top_left", {0, 0, 86, 30}},        {"top_center", {86, 0, 226, 30}},
                {"top_right", {312, 0, 88, 30}},     {"left", {0, 30, 5, 265}},
                {"right", {395, 30, 5, 265}},        {"bottom_left", {0, 295, 5, 5}},
                {"bottom_center", {5, 295, 390, 5}}, {"bottom_right", {395, 295, 5, 5}},
        };
        const QImage image = paintFrame(QSize(400, 300), density, active);
        QImage expected(image.size(), image.format());
        expected.fill(kNothing);
        QPainter painter(&expected);
        for (const Place &place : places) {
            painter.fillRect(QRect(place.rect.topLeft() * density, place.rect.size() * density),
                             flat_skin::piece(place.name, active));
        }
        painter.end();
        expected.setDevicePixelRatio(density);
        QCOMPARE(image, expected);
    }

    void smallestWindowHasCornersOnly()
    {
        const QImage image = paintFrame(QSize(174, 35), 1, true);
        for (int x = 0; x < 174; ++x) {
            QCOMPARE(image.pixelColor(x, 10),
                     flat_skin::piece(x < 86 ? "top_left" : "top_right", true));
        }
        QCOMPARE(image.pixelColor(0, 29), flat_skin::piece("top_left", true));
        QCOMPARE(image.pixelColor(0, 30), flat_skin::piece("bottom_left", true));
        QCOMPARE(image.pixelColor(173, 30), flat_skin::piece("bottom_right", true));
    }

    void fractionalDensityShowsNoSeamAndNoGap()
    {
        const QSet<QRgb> colors = [] {
            QSet<QRgb> all;
            for (const char *name : {"top_left", "top_center", "top_right", "left", "right",
                                     "bottom_left", "bottom_center", "bottom_right"})
                all.insert(flat_skin::piece(name, true).rgb());
            return all;
        }();
        for (const qreal density : {1.25, 1.5, 1.75}) {
            for (int step = 0; step < 40; ++step) {
                const QSize size(175 + step * 13, 37 + step * 7);
                const QImage image = paintFrame(size, density, true);
                const auto isFrame = [&](int x, int y) {
                    return colors.contains(image.pixel(x, y));
                };
                const int border = static_cast<int>(5 * density); // whole pixels that are covered
                const QString where = QStringLiteral("%1 x %2 at %3")
                                              .arg(size.width())
                                              .arg(size.height())
                                              .arg(density);
                bool whole = true;
                for (int x = 0; x < image.width(); ++x) {
                    for (int y = 0; y < static_cast<int>(30 * density); ++y)
                        whole &= isFrame(x, y);
                    for (int y = image.height() - border; y < image.height(); ++y)
                        whole &= isFrame(x, y);
                }
                for (int y = 0; y < image.height(); ++y) {
                    for (int x = 0; x < border; ++x)
                        whole &= isFrame(x, y) && isFrame(image.width() - 1 - x, y);
                }
                QVERIFY2(whole, qPrintable(where));
            }
        }
    }

    void onlyExposedPiecesArePainted()
    {
        const QImage image = paintFrame(QSize(400, 300), 1, true, QRegion(396, 100, 2, 2));
        QCOMPARE(image.pixelColor(397, 101), flat_skin::piece("right", true));
        QCOMPARE(image.pixelColor(0, 0), kNothing);
        QCOMPARE(image.pixelColor(200, 297), kNothing);
    }

    void shapeLacksThreePixelsAtEachCorner()
    {
        for (const QSize size : {QSize(174, 35), QSize(400, 300), QSize(401, 299), QSize(5, 5),
                                 QSize(4, 9), QSize(3, 3), QSize(1, 1)})
            QCOMPARE(frameShape(size), shapeFromBitmap(size));
        QVERIFY(frameShape(QSize(0, 0)).isEmpty());
        QVERIFY(!frameShape(QSize(400, 300)).contains(QPoint(1, 0)));
        QVERIFY(frameShape(QSize(400, 300)).contains(QPoint(1, 1)));
    }

    void titleIsShortenedToItsRoom()
    {
        const QFont font = QApplication::font();
        const auto paintTitle = [&](const QString &title, bool active) {
            QImage image(400, 300, QImage::Format_ARGB32_Premultiplied);
            image.fill(Qt::gray);
            QPainter painter(&image);
            FramePainter().paintTitle(&painter, image.size(), active, title, font);
            return image;
        };
        const QString title(300, QLatin1Char('W'));
        QImage expected(400, 300, QImage::Format_ARGB32_Premultiplied);
        expected.fill(Qt::gray);
        QPainter painter(&expected);
        painter.setFont(font);
        painter.setPen(Qt::black);
        painter.drawText(QRect(88, 2, 221, 26), Qt::AlignLeft | Qt::AlignVCenter,
                         QFontMetrics(font).elidedText(title, Qt::ElideRight, 221));
        painter.end();
        QCOMPARE(paintTitle(title, true), expected);
        QVERIFY(paintTitle(title, false) != expected); // white instead of black

        // A title that fits is drawn as it is, and nothing remains of an earlier one.
        FramePainter painterOfBoth;
        QImage image(400, 300, QImage::Format_ARGB32_Premultiplied);
        for (const QString &text : {title, QStringLiteral("Short")}) {
            image.fill(Qt::gray);
            QPainter imagePainter(&image);
            painterOfBoth.paintTitle(&imagePainter, image.size(), true, text, font);
        }
        QCOMPARE(image, paintTitle(QStringLiteral("Short"), true));
    }
};

OMBRIN_TEST_MAIN(tst_FramePainter)
#include "tst_framepainter.moc"
