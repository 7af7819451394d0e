#include "support/TestCase.h"

#include "effects/PopupPlacement.h"

using namespace ombrin::popup_placement;

class tst_PopupPlacement : public ombrin::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void popupsOpenWhollyOnTheirScreen_data()
    {
        // anchor, topLeft: from the screen's corner
        const auto row = columns<QPoint, QSize, QPoint>("anchor", "size", "topLeft");
        row("room", {100, 100}, {200, 150}, {100, 100});
        row("just fits", {1080, 874}, {200, 150}, {1080, 874});
        row("too far right", {1081, 100}, {200, 150}, {931, 100});
        row("too far down", {100, 875}, {200, 150}, {100, 775});
        row("corner", {1270, 1010}, {200, 150}, {1080, 874});
        row("left of the screen", {-30, -20}, {200, 150}, {0, 0});
        row("larger than the screen", {700, 700}, {1400, 1400}, {0, 0});
    }

    void popupsOpenWhollyOnTheirScreen()
    {
        QFETCH(QPoint, anchor);
        QFETCH(QSize, size);
        // On the first screen and on others left of, above, beside and right of it.
        for (const QPoint &corner : {QPoint(0, 0), QPoint(-1280, 0), QPoint(0, -1024),
                                     QPoint(-1280, -1024), QPoint(1280, 200)}) {
            const QRect screen(corner, QSize(1280, 1024));
            QTEST(flipped(corner + anchor, QSize(50, 50), size, screen) - corner, "topLeft");
            const QRect placed(movedInside(corner + anchor, size, screen), size);
            const QSize possible = size.boundedTo(screen.size());
            QCOMPARE((placed & screen).size(), possible);
            if (screen.contains(QRect(corner + anchor, size)))
                QCOMPARE(placed.topLeft(), corner + anchor);
        }
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
