#include "screen/CutSelection.h"
#include "support/TestCase.h"

using namespace ombrin;

namespace {

constexpr QSize kDesktop(640, 480);
constexpr QSize kButton(32, 32);

CutSelection selection(const QPoint &from, const QPoint &to)
{
    CutSelection result(kDesktop, kButton, kButton);
    result.press(from);
    result.moveTo(to);
    result.release();
    return result;
}

QRect corners(int left, int top, int right, int bottom)
{
    return QRect(QPoint(left, top), QPoint(right, bottom));
}

} // namespace

Q_DECLARE_METATYPE(CutZone)

class tst_CutSelection : public ombrin::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void dragsSelectFromCornerToCorner_data()
    {
        const auto row = columns<QPoint, QPoint, QRect, bool>("from", "to", "rect", "valid");
        const QRect whole = corners(100, 100, 300, 200);
        row("down", {100, 100}, {300, 200}, whole, true);
        row("up", {300, 200}, {100, 100}, whole, true);
        row("smallest", {9, 9}, {12, 6}, corners(9, 6, 12, 9), true);
        row("narrow", {9, 9}, {11, 99}, corners(9, 9, 11, 99), false);
        row("click", {9, 9}, {9, 9}, corners(9, 9, 9, 9), false);
    }

    void dragsSelectFromCornerToCorner()
    {
        QFETCH(QPoint, from);
        QFETCH(QPoint, to);
        const CutSelection made = selection(from, to);
        QTEST(made.rect(), "rect");
        QTEST(made.isValid(), "valid");
        QCOMPARE(made.snapButton().isNull(), !made.isValid());
    }

    void zonesAreWhereTheUserSeesThem_data()
    {
        const auto row = columns<QPoint, CutZone, Qt::CursorShape>("point", "zone", "cursor");
        // Of a selection from (100, 100) to (300, 200): handles of 5 x 5, which take 2 pixels more.
        row("top left", {97, 97}, CutZone::TopLeft, Qt::SizeFDiagCursor);
        row("top left, its end", {105, 105}, CutZone::TopLeft, Qt::SizeFDiagCursor);
        row("within top left", {106, 105}, CutZone::Inside, Qt::SizeAllCursor);
        row("top", {199, 97}, CutZone::Top, Qt::SizeVerCursor);
        row("top right", {300, 100}, CutZone::TopRight, Qt::SizeBDiagCursor);
        row("right", {304, 149}, CutZone::Right, Qt::SizeHorCursor);
        row("bottom right", {304, 204}, CutZone::BottomRight, Qt::SizeFDiagCursor);
        row("bottom", {199, 200}, CutZone::Bottom, Qt::SizeVerCursor);
        row("bottom left", {100, 200}, CutZone::BottomLeft, Qt::SizeBDiagCursor);
        row("left", {100, 149}, CutZone::Left, Qt::SizeHorCursor);
        row("edge between the handles", {130, 100}, CutZone::Inside, Qt::SizeAllCursor);
        row("snap", {226, 163}, CutZone::SnapButton, Qt::PointingHandCursor);
        row("between the buttons", {259, 163}, CutZone::Inside, Qt::SizeAllCursor);
        row("close", {294, 194}, CutZone::CloseButton, Qt::PointingHandCursor);
    }

    void zonesAreWhereTheUserSeesThem()
    {
        QFETCH(QPoint, point);
        const CutZone zone = selection({100, 100}, {300, 200}).zoneAt(point);
        QTEST(zone, "zone");
        QTEST(cursorShape(zone), "cursor");
        QCOMPARE(selection({1, 1}, {1, 1}).zoneAt(point), CutZone::Outside);
    }

    void dragsChangeWhatTheirZoneSays_data()
    {
        // rect: after a drag to (50, 400)
        const auto row = columns<QPoint, CutZone, QRect>("press", "zone", "rect");
        row("outside", {20, 390}, CutZone::Outside, corners(20, 390, 50, 400));
        row("inside", {110, 140}, CutZone::Inside, corners(40, 360, 240, 460));
        row("snap", {240, 170}, CutZone::SnapButton, corners(100, 100, 300, 200));
        row("close", {280, 170}, CutZone::CloseButton, corners(100, 100, 300, 200));
        row("top left", {100, 100}, CutZone::TopLeft, corners(50, 200, 300, 400));
        row("top", {200, 100}, CutZone::Top, corners(100, 200, 300, 400));
        row("top right", {300, 100}, CutZone::TopRight, corners(50, 200, 100, 400));
        row("right", {300, 150}, CutZone::Right, corners(50, 100, 100, 200));
        row("bottom right", {300, 200}, CutZone::BottomRight, corners(50, 100, 100, 400));
        row("bottom", {200, 200}, CutZone::Bottom, corners(100, 100, 300, 400));
        row("bottom left", {100, 200}, CutZone::BottomLeft, corners(50, 100, 300, 400));
        row("left", {100, 150}, CutZone::Left, corners(50, 100, 300, 200));
    }

    void dragsChangeWhatTheirZoneSays()
    {
        QFETCH(QPoint, press);
        CutSelection made = selection({100, 100}, {300, 200});
        made.press(press);
        QTEST(made.drag(), "zone");
        const bool hasButtons =
                made.drag() == CutZone::SnapButton || made.drag() == CutZone::CloseButton;
        made.moveTo({9, 9}); // steps on the way do not add up
        made.moveTo({50, 400});
        QTEST(made.rect(), "rect");
        QVERIFY(made.isValid());
        QCOMPARE(made.snapButton().isNull(), !hasButtons);
        made.release();
        QTEST(made.rect(), "rect");
        QVERIFY(!made.closeButton().isNull());
        made.restorePrevious();
        QVERIFY(made.isValid());
        QCOMPARE(made.rect(), corners(100, 100, 300, 200));
    }

    void buttonsStayOnTheDesktop_data()
    {
        const auto row = columns<QRect, QPoint>("area", "snap");
        row("in the corner", corners(100, 100, 300, 200), {226, 163});
        row("left", corners(-90, 100, 10, 200), {0, 163});
        row("top", corners(100, -90, 300, 20), {226, 0});
        row("bottom", corners(100, 400, 300, 520), {226, 448});
        row("right", corners(500, 100, 700, 200), {571, 163});
    }

    void buttonsStayOnTheDesktop()
    {
        QFETCH(QRect, area);
        QFETCH(QPoint, snap);
        const CutSelection made = selection(area.topLeft(), area.bottomRight());
        QCOMPARE(made.snapButton(), QRect(snap, kButton));
        QCOMPARE(made.closeButton(), QRect(snap + QPoint(37, 0), kButton));
    }

    void onlyWhatChangedIsDrawnAnew()
    {
        CutSelection made = selection({100, 100}, {300, 200});
        made.press({300, 200});
        const CutSelection before = made;
        made.moveTo({320, 210});
        const QRegion changed = made.changedSince(before);
        for (const QPoint &point :
             {QPoint(95, 95), QPoint(301, 150), QPoint(295, 150), QPoint(330, 220)})
            QVERIFY(changed.contains(point));
        for (const QPoint &point : {QPoint(150, 150), QPoint(89, 150), QPoint(331, 150)})
            QVERIFY(!changed.contains(point));
        made.moveTo({101, 101}); // too small: the frame goes
        QVERIFY(made.changedSince(before).contains({200, 150}));
    }
};

OMBRIN_TEST_MAIN(tst_CutSelection)
#include "tst_cutselection.moc"
