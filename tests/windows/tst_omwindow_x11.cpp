#include "support/TestCase.h"
#include "support/XUser.h"
#include "windows/FlatSkin.h"

#include <ombrin/OmDialog2.h>
#include <ombrin/OmImageButton.h>
#include <ombrin/OmWindow.h>

#include <QtGui/QScreen>
#include <QtGui/QWindow>
#include <QtWidgets/QPushButton>

using namespace ombrin::test;
using ombrin::OmDialog2;
using ombrin::OmImageButton;
using ombrin::OmWindow;

namespace {

const QRect kStart(300, 200, 400, 300);

template <typename Window>
void showAt(Window &window, const QRect &geometry)
{
    window.setGeometry(geometry);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    // The window manager places new windows as it likes.
    window.setGeometry(geometry);
    QVERIFY(TestCase::waitFor([&] { return window.geometry() == geometry; }));
    QTest::qWait(100);
}

bool becomes(const QWidget &window, const QRect &geometry)
{
    return TestCase::waitFor([&] { return window.geometry() == geometry; }, 2000);
}

// After a drag the window may lag behind by the pixels that told the drag from a click.
bool isDragged(const QWidget &window, const QRect &geometry)
{
    constexpr int kDragDistance = 2;
    return TestCase::waitFor(
            [&] {
                const QMargins off(window.geometry().left() - geometry.left(),
                                   window.geometry().top() - geometry.top(),
                                   window.geometry().right() - geometry.right(),
                                   window.geometry().bottom() - geometry.bottom());
                return std::abs(off.left()) <= kDragDistance && std::abs(off.top()) <= kDragDistance
                       && std::abs(off.right()) <= kDragDistance
                       && std::abs(off.bottom()) <= kDragDistance;
            },
            2000);
}

QString name(const QRect &rect)
{
    return QStringLiteral("%1,%2 %3x%4")
            .arg(rect.x())
            .arg(rect.y())
            .arg(rect.width())
            .arg(rect.height());
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
        runBeside(QStringLiteral("xprop"),
                  {QStringLiteral("-id"), QString::number(winId()), QStringLiteral("-f"),
                   QStringLiteral("_NET_WM_STRUT"), QStringLiteral("32c"), QStringLiteral("-set"),
                   QStringLiteral("_NET_WM_STRUT"), QStringLiteral("0, 0, 0, %1").arg(kHeight)});
        QTest::qWait(200);
    }
};

} // namespace

class tst_OmWindowX11 : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(flat_skin::registerSkin()); }

    void mouseMovesAndResizesTheWindow_data()
    {
        QTest::addColumn<QPoint>("from"); // in the window
        QTest::addColumn<QPoint>("delta");
        QTest::addColumn<QRect>("result");
        const auto row = [](const char *title, QPoint from, QPoint delta, QRect change) {
            QTest::newRow(title) << from << delta
                                 << QRect(kStart.topLeft() + change.topLeft(),
                                          kStart.size() + change.size());
        };
        // Changes are left, top, width, height.
        row("title", {200, 15}, {60, 45}, {60, 45, 0, 0});
        row("inside", {200, 150}, {-70, -30}, {-70, -30, 0, 0});
        row("left edge", {1, 150}, {-50, 20}, {-50, 0, 50, 0});
        row("right edge", {398, 150}, {50, 20}, {0, 0, 50, 0});
        row("top edge", {200, 1}, {15, -40}, {0, -40, 0, 40});
        row("bottom edge", {200, 298}, {15, 40}, {0, 0, 0, 40});
        row("top left corner", {2, 2}, {-30, -20}, {-30, -20, 30, 20});
        row("top right corner", {397, 2}, {30, -20}, {0, -20, 30, 20});
        row("bottom left corner", {2, 297}, {-30, 20}, {-30, 0, 30, 20});
        row("bottom right corner", {397, 297}, {30, 20}, {0, 0, 30, 20});
        row("left edge past the minimum", {1, 150}, {350, 0}, {226, 0, -226, 0});
    }

    void mouseMovesAndResizesTheWindow()
    {
        QFETCH(QPoint, from);
        QFETCH(QPoint, delta);
        QFETCH(QRect, result);
        OmWindow window;
        showAt(window, kStart);
        dragBy(kStart.topLeft() + from, delta);
        QVERIFY2(isDragged(window, result),
                 qPrintable(name(window.geometry()) + QStringLiteral(" not ") + name(result)));
        // The drag is over: the window does not follow the mouse any more.
        const QRect dropped = window.geometry();
        xdo(QStringLiteral("mousemove 50 50"));
        QCOMPARE(window.geometry(), dropped);
    }

    void windowPlacedBeforeItIsShownKnowsWhereItIs()
    {
        for (int round = 0; round < 4; ++round) {
            OmWindow window;
            window.setGeometry(kStart);
            window.show();
            QVERIFY(QTest::qWaitForWindowExposed(&window));
            QTest::qWait(100);
            const QString seen =
                    runBeside(QStringLiteral("xwininfo"),
                              {QStringLiteral("-id"), QString::number(window.winId())});
            const QPoint position = window.mapToGlobal(QPoint(0, 0));
            QVERIFY2(seen.contains(QRegularExpression(
                             QStringLiteral("upper-left X:\\s+%1\n").arg(position.x()))),
                     qPrintable(seen + name(window.geometry())));
            QVERIFY(seen.contains(
                    QRegularExpression(QStringLiteral("upper-left Y:\\s+%1\n").arg(position.y()))));
        }
    }

    void fixedWindowMovesButDoesNotResize()
    {
        OmWindow window;
        window.setFixed(true);
        showAt(window, kStart);
        dragBy(kStart.topLeft() + QPoint(398, 150), QPoint(40, 10));
        QCOMPARE(window.size(), kStart.size());
        const QPoint before = window.pos();
        dragBy(before + QPoint(200, 15), QPoint(40, 30));
        QVERIFY(isDragged(window, QRect(before + QPoint(40, 30), kStart.size())));
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

    void dialogBlocksItsParentAndNoOtherWindow()
    {
        OmWindow parent;
        OmWindow other;
        auto *parentButton = new QPushButton;
        auto *otherButton = new QPushButton;
        parent.setWidget(parentButton);
        other.setWidget(otherButton);
        int parentClicks = 0;
        int otherClicks = 0;
        connect(parentButton, &QPushButton::clicked, this, [&] { ++parentClicks; });
        connect(otherButton, &QPushButton::clicked, this, [&] { ++otherClicks; });
        showAt(parent, QRect(20, 20, 250, 200));
        showAt(other, QRect(320, 20, 250, 200));
        OmDialog2 dialog(&parent);
        showAt(dialog, QRect(20, 400, 250, 200));

        clickAt(parentButton->mapToGlobal(parentButton->rect().center()));
        QTest::qWait(100);
        QCOMPARE(parentClicks, 0);
        clickAt(otherButton->mapToGlobal(otherButton->rect().center()));
        QVERIFY(waitFor([&] { return otherClicks == 1; }));
        dialog.close();
        QTest::qWait(100);
        clickAt(parentButton->mapToGlobal(parentButton->rect().center()));
        QVERIFY(waitFor([&] { return parentClicks == 1; }));
    }

    void dragOnATitleButtonIsNoDragAndAPressIsAClick()
    {
        OmWindow window;
        showAt(window, kStart);
        auto *close =
                window.findChildren<OmImageButton *>(QString(), Qt::FindDirectChildrenOnly).at(3);
        const QPoint onClose = close->mapToGlobal(close->rect().center());
        dragBy(onClose, QPoint(-120, 60));
        QCOMPARE(window.geometry(), kStart);
        QVERIFY(window.isVisible());
        clickAt(kStart.topLeft() + QPoint(200, 15));
        QCOMPARE(window.geometry(), kStart);
        clickAt(onClose);
        QVERIFY(waitFor([&window] { return !window.isVisible(); }));
    }
};

OMBRIN_TEST_MAIN(tst_OmWindowX11)
#include "tst_omwindow_x11.moc"
