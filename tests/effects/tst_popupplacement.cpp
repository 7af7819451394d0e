#include "support/TestCase.h"

#include "effects/PopupPlacement.h"

#include <QtGui/QScreen>

using namespace ombrin::popup_placement;

class tst_PopupPlacement : public ombrin::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void popupsOpenWhollyOnTheirScreen_data()
    {
        QTest::addColumn<QRect>("screen");
        // Counted from the screen's corner.
        QTest::addColumn<QPoint>("anchor");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QPoint>("topLeft");

        const std::pair<const char *, QRect> screens[] = {
                {"first", {0, 0, 1280, 1024}},
                {"left of it", {-1280, 0, 1280, 1024}},
                {"above it", {0, -1024, 1280, 1024}},
                {"left of and above it", {-1280, -1024, 1280, 1024}},
                {"right of it", {1280, 200, 1280, 1024}},
        };
        const struct
        {
            const char *name;
            QPoint anchor;
            QSize size;
            QPoint topLeft;
        } places[] = {
                {"room", {100, 100}, {200, 150}, {100, 100}},
                {"just fits", {1080, 874}, {200, 150}, {1080, 874}},
                {"too far right", {1081, 100}, {200, 150}, {931, 100}},
                {"too far down", {100, 875}, {200, 150}, {100, 775}},
                {"corner", {1270, 1010}, {200, 150}, {1080, 874}},
                {"left of the screen", {-30, -20}, {200, 150}, {0, 0}},
                {"larger than the screen", {700, 700}, {1400, 1400}, {0, 0}},
        };
        for (const auto &[name, screen] : screens) {
            for (const auto &place : places)
                QTest::addRow("%s, %s", name, place.name)
                        << screen << place.anchor << place.size << place.topLeft;
        }
    }

    void popupsOpenWhollyOnTheirScreen()
    {
        QFETCH(QRect, screen);
        QFETCH(QPoint, anchor);
        QFETCH(QSize, size);
        QFETCH(QPoint, topLeft);
        const QPoint corner = screen.topLeft();
        QCOMPARE(flipped(corner + anchor, QSize(50, 50), size, screen) - corner, topLeft);
        const QRect placed(movedInside(corner + anchor, size, screen), size);
        const QSize possible = size.boundedTo(screen.size());
        QCOMPARE((placed & screen).size(), possible);
        if (screen.contains(QRect(corner + anchor, size)))
            QCOMPARE(placed.topLeft(), corner + anchor);
    }

    void positionsBesideAllScreensBelongToTheNearest()
    {
        const QRect screen = QGuiApplication::primaryScreen()->geometry();
        QCOMPARE(screenAt(screen.center()), screen);
        QCOMPARE(screenAt(screen.topLeft() - QPoint(5000, 5000)), screen);
    }
};

OMBRIN_TEST_MAIN(tst_PopupPlacement)
#include "tst_popupplacement.moc"
