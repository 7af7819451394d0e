#include "support/WidgetEvents.h"
#include "windows/FlatSkin.h"

#include "windows/FramePainter.h"

using namespace ombrin;
using namespace ombrin::test;

namespace {

const QColor kNothing(255, 0, 255);

QImage paintFrame(const QSize &size, qreal density, bool active,
                  const QRegion &exposed = QRegion(-10000, -10000, 20000, 20000))
{
    QImage image = flatImage((QSizeF(size) * density).toSize(), kNothing);
    image.setDevicePixelRatio(density);
    QPainter painter(&image);
    FramePainter::paintBorder(&painter, size, active, exposed);
    return image;
}

} // namespace

class tst_FramePainter : public ombrin::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(ombrin::test::registerPictures(flat_skin::kFile)); }

    void eachPieceFillsItsPlace()
    {
        const std::pair<const char *, QRect> places[] = {
                {"top_left", {0, 0, 86, 30}},        {"top_center", {86, 0, 226, 30}},
                {"top_right", {312, 0, 88, 30}},     {"left", {0, 30, 5, 265}},
                {"right", {395, 30, 5, 265}},        {"bottom_left", {0, 295, 5, 5}},
                {"bottom_center", {5, 295, 390, 5}}, {"bottom_right", {395, 295, 5, 5}},
        };
        for (const auto &[active, density] : {std::pair(true, 1), {false, 2}, {true, 3}}) {
            const QImage image = paintFrame(QSize(400, 300), density, active);
            QImage expected = flatImage(image.size(), kNothing);
            expected.setDevicePixelRatio(density);
            QPainter painter(&expected);
            for (const auto &[name, rect] : places)
                painter.fillRect(rect, flat_skin::piece(name, active));
            painter.end();
            QCOMPARE(image, expected);
        }
    }

    void fractionalDensityShowsNoSeamAndNoGap()
    {
        for (const qreal density : {1.25, 1.5, 1.75}) {
            for (int step = 0; step < 40; ++step) {
                const QSize size(175 + step * 13, 37 + step * 7);
                const QImage image = paintFrame(size, density, true);
                const int side = static_cast<int>(5 * density); // whole pixels that are covered
                const int top = static_cast<int>(30 * density);
                const QRect inside = image.rect().adjusted(side, top, -side, -side);
                for (int y = 0; y < image.height(); ++y) {
                    for (int x = 0; x < image.width(); ++x) {
                        // All pieces have this red and blue, and nothing between them has.
                        const QRgb pixel = image.pixel(x, y);
                        const bool isPiece = qRed(pixel) == 0x40 && qBlue(pixel) == 0xc0;
                        if (!isPiece && !inside.contains(x, y))
                            QFAIL(qPrintable("%1, %2 at %3"_q.arg(x).arg(y).arg(density)));
                    }
                }
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
        for (const QSize &size : {QSize(174, 35), QSize(41, 30), QSize(5, 5), QSize(4, 9),
                                  QSize(3, 3), QSize(1, 1), QSize(0, 0)}) {
            const QRegion shape = frameShape(size);
            const QRect all(QPoint(0, 0), size);
            for (int y = -1; y <= size.height(); ++y) {
                for (int x = -1; x <= size.width(); ++x) {
                    const int fromSide = qMin(x, size.width() - 1 - x);
                    const int fromEnd = qMin(y, size.height() - 1 - y);
                    QCOMPARE(shape.contains(QPoint(x, y)),
                             all.contains(x, y) && fromSide + fromEnd >= 2);
                }
            }
        }
    }

    void titleIsShortenedToItsRoom()
    {
        const QFont font = QApplication::font();
        const auto paintTitle = [&](const QString &title, bool active) {
            QImage image = flatImage(QSize(400, 300), Qt::gray);
            QPainter painter(&image);
            FramePainter().paintTitle(&painter, image.size(), active, title, font);
            return image;
        };
        const QString title(300, QLatin1Char('W'));
        QImage expected = flatImage(QSize(400, 300), Qt::gray);
        QPainter painter(&expected);
        painter.setFont(font);
        painter.setPen(Qt::black);
        painter.drawText(QRect(88, 2, 221, 26), Qt::AlignLeft | Qt::AlignVCenter,
                         QFontMetrics(font).elidedText(title, Qt::ElideRight, 221));
        painter.end();
        QCOMPARE(paintTitle(title, true), expected);
        QVERIFY(paintTitle(title, false) != expected); // white instead of black

        // Nothing remains of an earlier one.
        FramePainter painterOfBoth;
        QImage image;
        for (const QString &text : {title, "Short"_q}) {
            image = flatImage(QSize(400, 300), Qt::gray);
            QPainter imagePainter(&image);
            painterOfBoth.paintTitle(&imagePainter, image.size(), true, text, font);
        }
        QCOMPARE(image, paintTitle("Short"_q, true));
    }
};

OMBRIN_TEST_MAIN(tst_FramePainter)
#include "tst_framepainter.moc"
