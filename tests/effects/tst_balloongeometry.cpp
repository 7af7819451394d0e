#include "support/TestCase.h"

#include "effects/BalloonGeometry.h"

using namespace ombrin::balloon_geometry;

namespace {

constexpr ArrowCorner kTopLeft{true, true};
constexpr ArrowCorner kTopRight{true, false};
constexpr ArrowCorner kBottomLeft{false, true};
constexpr ArrowCorner kBottomRight{false, false};

const QRect kFirst(0, 0, 1280, 1024);

} // namespace

Q_DECLARE_METATYPE(ombrin::balloon_geometry::ArrowCorner)

class tst_BalloonGeometry : public ombrin::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aPositionBelongsToItsScreenOrTheNearest_data()
    {
        const auto row = columns<QVector<QRect>, QPoint, int>("screens", "position", "index");
        const QVector<QRect> screens = {kFirst, {1280, 200, 800, 600}, {-800, -600, 800, 600}};
        row("first", screens, {1279, 1023}, 0);
        row("right of the first", screens, {1280, 200}, 1);
        row("left of and above the first", screens, {-1, -1}, 2);
        row("above the second", screens, {1700, 150}, 1);
        row("below the third", screens, {-700, 10}, 2);
        row("far away", screens, {INT_MAX, INT_MIN}, 1);
        row("no screens", QVector<QRect>(), {1, 1}, -1);
    }

    void aPositionBelongsToItsScreenOrTheNearest()
    {
        QFETCH(QVector<QRect>, screens);
        QFETCH(QPoint, position);
        QTEST(screenAt(screens, position), "index");
    }

    void arrowStandsWhereTheBalloonHasRoom_data()
    {
        const auto row = columns<QRect, QPoint, ArrowCorner, QPoint>("screen", "position", "corner",
                                                                     "place");
        // The balloons are 100 x 40, with their margins 108 x 64.
        row("last row with room", kFirst, {600, 965}, kTopLeft, {582, 965});
        row("first row without", kFirst, {600, 966}, kBottomLeft, {582, 902});
        row("last column with room", kFirst, {1197, 500}, kTopLeft, {1179, 500});
        row("first column without", kFirst, {1198, 500}, kTopRight, {1108, 500});
        row("left edge", kFirst, {5, 500}, kTopLeft, {2, 500});
        row("lower right corner", kFirst, {1279, 1023}, kBottomRight, {1169, 959});
        row("no screen", {}, {7, 8}, kBottomRight, {-111, -56});

        // Width and height count from the origin on other screens too.
        const QRect right(1280, 0, 1280, 1024);
        row("right screen", right, {1900, 500}, kTopRight, {1810, 500});
        row("right screen, right edge", right, {2559, 500}, kTopRight, {2449, 500});
        const QRect below(0, 1024, 1280, 1024);
        row("lower screen, lower edge", below, {1279, 2047}, kBottomRight, {1169, 1983});
        const QRect left(-1280, 0, 1280, 1024);
        row("left screen, left edge", left, {-1280, 500}, kTopLeft, {-1278, 500});
        const QRect above(0, -1024, 1280, 1024);
        row("upper screen, upper edge", above, {600, -1024}, kTopLeft, {582, -1024});

        // But not where that takes the balloon off its screen.
        row("right screen, left edge", right, {1290, 500}, kTopLeft, {1282, 500});
        row("lower screen, upper edge", below, {600, 1030}, kTopLeft, {582, 1030});
        row("left screen, right edge", left, {-10, 500}, kTopRight, {-111, 500});
        row("upper screen, lower edge", above, {600, -10}, kBottomLeft, {582, -74});
        const QRect corner(-800, -600, 800, 600);
        row("left of and above the origin", corner, {-400, -300}, kTopLeft, {-418, -300});
        row("beside the origin", corner, {-10, -10}, kBottomRight, {-111, -74});
    }

    void arrowStandsWhereTheBalloonHasRoom()
    {
        QFETCH(QRect, screen);
        QFETCH(QPoint, position);
        QFETCH(ArrowCorner, corner);
        const QSize contents(100, 40);
        const ArrowCorner actual = arrowCorner(position, contents, screen);
        QCOMPARE(actual.atTop, corner.atTop);
        QCOMPARE(actual.atLeft, corner.atLeft);
        const QMargins around = margins(corner);
        QCOMPARE(around, corner.atTop ? QMargins(4, 21, 4, 3) : QMargins(4, 3, 4, 21));
        QTEST(topLeft(position, contents.grownBy(around), corner, screen), "place");
    }

    void thereIsRoomOnOneSideOfThePosition()
    {
        QCOMPARE(room({600, 500}, kFirst), QSize(695, 523));
        QCOMPARE(room({1000, 900}, kFirst), QSize(1016, 900));
        QCOMPARE(room({0, 0}, kFirst), QSize(1276, 1023));
        QCOMPARE(room({-700, -100}, {-800, -600, 800, 600}), QSize(715, 500));
        QCOMPARE(room({5000, 5000}, QRect()), QSize(0, 5000));
    }
};

OMBRIN_TEST_MAIN(tst_BalloonGeometry)
#include "tst_balloongeometry.moc"
