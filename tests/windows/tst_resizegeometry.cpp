#include "support/TestCase.h"

#include "windows/ResizeGeometry.h"

using namespace ombrin;

Q_DECLARE_METATYPE(Qt::Edges)

class tst_ResizeGeometry : public ombrin::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void borderIsFourPixelsWideAndCornersHaveTwoEdges_data()
    {
        const auto row = columns<QPoint, Qt::Edges, Qt::CursorShape>("position", "edges", "cursor");
        row("inside", {200, 150}, {}, Qt::ArrowCursor);
        row("last of left", {3, 150}, Qt::LeftEdge, Qt::SizeHorCursor);
        row("beside left", {4, 150}, {}, Qt::ArrowCursor);
        row("first of right", {396, 150}, Qt::RightEdge, Qt::SizeHorCursor);
        row("top left", {0, 0}, Qt::LeftEdge | Qt::TopEdge, Qt::SizeFDiagCursor);
        row("top right", {399, 3}, Qt::RightEdge | Qt::TopEdge, Qt::SizeBDiagCursor);
        row("bottom", {200, 299}, Qt::BottomEdge, Qt::SizeVerCursor);
        row("bottom left", {2, 297}, Qt::LeftEdge | Qt::BottomEdge, Qt::SizeBDiagCursor);
        row("bottom right", {399, 299}, Qt::RightEdge | Qt::BottomEdge, Qt::SizeFDiagCursor);
        row("outside", {-1, 150}, {}, Qt::ArrowCursor);
    }

    void borderIsFourPixelsWideAndCornersHaveTwoEdges()
    {
        QFETCH(QPoint, position);
        QFETCH(Qt::Edges, edges);
        QCOMPARE(resize_geometry::edgesAt(position, QSize(400, 300), 4), edges);
        QTEST(resize_geometry::cursorAt(edges), "cursor");
    }

    void draggedEdgeStopsAtTheLimitsAndTheOppositeOneStays_data()
    {
        const auto row = columns<Qt::Edges, QPoint, QRect>("edges", "delta", "result");
        // From (100, 100) 400 x 300, between 174 x 35 and 600 x 500.
        row("right", Qt::RightEdge, {20, 5}, {100, 100, 420, 300});
        row("bottom", Qt::BottomEdge, {20, 5}, {100, 100, 400, 305});
        row("left", Qt::LeftEdge, {20, 5}, {120, 100, 380, 300});
        row("corner", Qt::LeftEdge | Qt::TopEdge, {-10, 10}, {90, 110, 410, 290});
        row("left past the minimum", Qt::LeftEdge, {900, 0}, {326, 100, 174, 300});
        row("top past the minimum", Qt::TopEdge, {0, 900}, {100, 365, 400, 35});
        row("bottom past the maximum", Qt::BottomEdge, {0, 900}, {100, 100, 400, 500});
    }

    void draggedEdgeStopsAtTheLimitsAndTheOppositeOneStays()
    {
        QFETCH(Qt::Edges, edges);
        QFETCH(QPoint, delta);
        QTEST(resize_geometry::resized(QRect(100, 100, 400, 300), edges, delta, QSize(174, 35),
                                       QSize(600, 500)),
              "result");
    }
};

OMBRIN_TEST_MAIN(tst_ResizeGeometry)
#include "tst_resizegeometry.moc"
