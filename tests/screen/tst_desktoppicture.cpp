#include "screen/DesktopPicture.h"
#include "support/TestCase.h"

using ombrin::DesktopPicture;

namespace {

/// A picture whose pixels tell where they are and on which screen.
DesktopPicture::Screen screen(const QRect &geometry, qreal density, int blue)
{
    QImage image((QSizeF(geometry.size()) * density).toSize(), QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, qRgb(x % 256, y % 256, blue));
    }
    return {geometry, QPixmap::fromImage(image)};
}

} // namespace

class tst_DesktopPicture : public ombrin::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cutsHoldTheRealPixelsOfTheirScreens_data()
    {
        // In logical pixels: the primary screen at the origin, a denser one left of it and higher,
        // one of 1.5 below it.
        // cut: from the corner of the desktop, which is at (-80, -20)
        const auto row = columns<QRect, QSize, qreal, QPoint, QColor>("cut", "size", "density",
                                                                      "pixel", "color");
        row("primary", {90, 30, 20, 10}, {20, 10}, 1.0, {3, 4}, {10 + 3, 10 + 4, 1});
        row("dense", {10, 5, 20, 10}, {40, 20}, 2.0, {3, 4}, {20 + 3, 10 + 4, 2});
        row("1.5", {83, 125, 3, 3}, {4, 4}, 1.5, {0, 0}, {5, 8, 3});
        row("both, dense part", {70, 30, 20, 10}, {40, 20}, 2.0, {3, 4}, {140 + 3, 60 + 4, 2});
        row("both, other part", {70, 30, 20, 10}, {40, 20}, 2.0, {22, 4}, {1, 12, 1});
        row("where no screen is", {70, 0, 30, 30}, {60, 60}, 2.0, {30, 10}, {0, 0, 0});
        row("beyond the desktop", {170, 110, 99, 99}, {10, 70}, 1.0, {0, 0}, {90, 90, 1});
        row("whole", {0, 0, 180, 180}, {360, 360}, 2.0, {0, 0}, {0, 0, 2});
    }

    void cutsHoldTheRealPixelsOfTheirScreens()
    {
        QFETCH(QRect, cut);
        QFETCH(QPoint, pixel);
        const DesktopPicture desktop({screen({0, 0, 100, 100}, 1, 1),
                                      screen({-80, -20, 80, 60}, 2, 2),
                                      screen({0, 100, 60, 60}, 1.5, 3)});
        QCOMPARE(desktop.geometry(), QRect(-80, -20, 180, 180));
        const QPixmap picture = desktop.copy(cut);
        QTEST(picture.size(), "size");
        QTEST(picture.devicePixelRatio(), "density");
        QTEST(picture.toImage().pixelColor(pixel), "color");

        // The cutter shows the same, wherever it repaints.
        QImage shown(180, 180, QImage::Format_RGB32);
        shown.fill(Qt::black);
        QPainter painter(&shown);
        desktop.paint(&painter, QRect(0, 0, 91, 180));
        desktop.paint(&painter, QRect(91, 0, 89, 180));
        painter.end();
        QCOMPARE(shown.pixelColor(99, 49), QColor(19, 29, 1));
        QCOMPARE(shown.pixelColor(10, 5).blue(), 2);
        QCOMPARE(shown.pixelColor(120, 10), QColor(Qt::black));
    }

    void missingScreenLeavesNoPicture()
    {
        QVERIFY(DesktopPicture().isNull());
        QVERIFY(DesktopPicture().whole().isNull());
        const DesktopPicture half({screen({0, 0, 9, 9}, 1, 1), {QRect(9, 0, 9, 9), QPixmap()}});
        QVERIFY(half.isNull());
        QVERIFY(DesktopPicture({screen({0, 0, 9, 9}, 1, 1)}).copy({9, 9, 5, 5}).isNull());
    }
};

OMBRIN_TEST_MAIN(tst_DesktopPicture)
#include "tst_desktoppicture.moc"
