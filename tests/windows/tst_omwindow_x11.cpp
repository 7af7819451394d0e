#include "support/WidgetEvents.h"
#include "support/XUser.h"
#include "windows/FlatSkin.h"

#include <ombrin/OmImageButton.h>
#include <ombrin/OmWindow.h>

using namespace ombrin::test;
using namespace ombrin;

namespace {

const QRect kStart(300, 200, 400, 300);

bool becomes(const QWidget &window, const QRect &geometry)
{
    return TestCase::waitFor([&] { return window.geometry() == geometry; });
}

void showAt(QWidget &window, const QRect &geometry)
{
    window.setGeometry(geometry);
    QVERIFY(activate(&window));
    // The window manager places new windows as it likes.
    window.setGeometry(geometry);
    QVERIFY(becomes(window, geometry));
    QTest::qWait(100);
}

// After a drag the window may lag behind by the pixels that told the drag from a click.
bool isDragged(const QWidget &window, const QRect &geometry)
{
    constexpr int kDragDistance = 2;
    const auto isNear = [](const QPoint &one, const QPoint &other) {
        return std::abs(one.x() - other.x()) <= kDragDistance
               && std::abs(one.y() - other.y()) <= kDragDistance;
    };
    return TestCase::waitFor([&] {
        const QRect now = window.geometry();
        return isNear(now.topLeft(), geometry.topLeft())
               && isNear(now.bottomRight(), geometry.bottomRight());
    });
}

QString name(const QRect &rect)
{
    return "%1,%2 %3x%4"_q.arg(rect.x()).arg(rect.y()).arg(rect.width()).arg(rect.height());
}

// A task bar at the bottom of the screen, 40 pixels high.
class Panel : public QWidget
{
public:
    static constexpr int kHeight = 40;

    Panel()
    {
        setAttribute(Qt::WA_X11NetWmWindowTypeDock);
        setWindowFlags(Qt::FramelessWindowHint);
        const QRect screen = QGuiApplication::primaryScreen()->geometry();
        setGeometry(0, screen.height() - kHeight, screen.width(), kHeight);
        show();
        runBeside("xprop"_q, {"-id"_q, QString::number(winId()), "-f"_q, "_NET_WM_STRUT"_q, "32c"_q,
                              "-set"_q, "_NET_WM_STRUT"_q, "0, 0, 0, %1"_q.arg(kHeight)});
        QTest::qWait(200);
    }
};

} // namespace

class tst_OmWindowX11 : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(ombrin::test::registerPictures(flat_skin::kFile)); }

    void mouseMovesAndResizesTheWindow_data()
    {
        // from: in the window
        // change: of left, top, width and height
        const auto row = columns<bool, QPoint, QPoint, QRect>("fixed", "from", "delta", "change");
        row("title", false, {200, 15}, {60, 45}, {60, 45, 0, 0});
        row("left edge", false, {1, 150}, {-50, 20}, {-50, 0, 50, 0});
        row("top left corner", false, {2, 2}, {-30, -20}, {-30, -20, 30, 20});
        row("bottom right corner", false, {397, 297}, {30, 20}, {0, 0, 30, 20});
        row("left edge past the minimum", false, {1, 150}, {350, 0}, {226, 0, -226, 0});
        row("title when fixed", true, {200, 15}, {60, 45}, {60, 45, 0, 0});
    }

    void mouseMovesAndResizesTheWindow()
    {
        QFETCH(bool, fixed);
        QFETCH(QPoint, from);
        QFETCH(QPoint, delta);
        QFETCH(QRect, change);
        const QRect result(kStart.topLeft() + change.topLeft(), kStart.size() + change.size());
        OmWindow window;
        window.setFixed(fixed);
        showAt(window, kStart);
        dragBy(kStart.topLeft() + from, delta);
        QVERIFY2(isDragged(window, result),
                 qPrintable(name(window.geometry()) + " not "_q + name(result)));
        // The drag is over: the window does not follow the mouse any more.
        const QRect dropped = window.geometry();
        xdo("mousemove 50 50"_q);
        QCOMPARE(window.geometry(), dropped);
    }

    void windowPlacedBeforeItIsShownKnowsWhereItIs()
    {
        for (int round = 0; round < 4; ++round) {
            OmWindow window;
            window.setGeometry(kStart);
            window.show();
            QVERIFY(QTest::qWaitForWindowExposed(&window, 20000));
            QTest::qWait(100);
            const QString seen =
                    runBeside("xwininfo"_q, {"-id"_q, QString::number(window.winId())});
            const QPoint position = window.mapToGlobal(QPoint(0, 0));
            QVERIFY2(seen.contains(QRegularExpression("upper-left X:\\s+%1\n"_q.arg(position.x()))),
                     qPrintable(seen + name(window.geometry())));
            QVERIFY(seen.contains(QRegularExpression("upper-left Y:\\s+%1\n"_q.arg(position.y()))));
        }
    }

    void doubleClickMaximisesToTheWorkAreaAndBack()
    {
        const Panel panel;
        const QRect screen = QGuiApplication::primaryScreen()->geometry();
        const QRect workArea = screen.adjusted(0, 0, 0, -Panel::kHeight);
        OmWindow window;
        showAt(window, kStart);
        auto buttons = window.findChildren<OmImageButton *>(QString(), Qt::FindDirectChildrenOnly);
        const OmImageButton *maximize = buttons.at(1);
        const OmImageButton *restore = buttons.at(2);

        clickAt(kStart.topLeft() + QPoint(200, 31), 1, 2);
        QTest::qWait(200);
        QVERIFY(!window.isMaximized());

        QTest::qWait(QApplication::doubleClickInterval());
        clickAt(kStart.topLeft() + QPoint(200, 30), 1, 2);
        QVERIFY2(becomes(window, workArea), qPrintable(name(window.geometry())));
        QVERIFY(waitFor([&] { return restore->isVisible() && !maximize->isVisible(); }));

        // Dragging a maximised window does nothing.
        QTest::qWait(QApplication::doubleClickInterval());
        dragBy(QPoint(200, 15), QPoint(50, 50));
        QCOMPARE(window.geometry(), workArea);

        QTest::qWait(QApplication::doubleClickInterval());
        clickAt(QPoint(200, 15), 1, 2);
        QVERIFY2(becomes(window, kStart), qPrintable(name(window.geometry())));
        QVERIFY(waitFor([&] { return !restore->isVisible() && maximize->isVisible(); }));
    }
};

OMBRIN_TEST_MAIN(tst_OmWindowX11)
#include "tst_omwindow_x11.moc"
