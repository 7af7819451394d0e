#include "platform/NativeWindow_win.h"
#include "support/TestCase.h"

#include <ombrin/OmDialog2.h>
#include <ombrin/OmWindow.h>

#include <atomic>
#include <functional>
#include <thread>

using namespace ombrin;

namespace {

constexpr LONG systemBoxes = 0xB0000;
constexpr LONG maximizeBox = 0x10000;

QRect rectOf(HWND window)
{
    RECT rect = {};
    GetWindowRect(window, &rect);
    return QRect(QPoint(rect.left, rect.top), QPoint(rect.right - 1, rect.bottom - 1));
}

// What the window and the dialog have in common, seen as the system sees it.
struct Frame
{
    std::unique_ptr<QWidget> widget;
    std::function<void(bool)> setFixed;

    HWND native() const { return reinterpret_cast<HWND>(widget->winId()); }
    LONG boxes() const { return GetWindowLongW(native(), GWL_STYLE) & systemBoxes; }
    bool isTopmost() const { return (GetWindowLongW(native(), GWL_EXSTYLE) & WS_EX_TOPMOST) != 0; }
    QRect rect() const { return rectOf(native()); }
    void showAndWait() const
    {
        widget->show();
        QVERIFY(QTest::qWaitForWindowActive(widget.get(), 20000));
    }
};

template <typename Window>
Frame makeFrame()
{
    auto window = std::make_unique<Window>();
    window->setGeometry(200, 150, 400, 300);
    Window *raw = window.get();
    return {std::move(window), [raw](bool fixed) { raw->setFixed(fixed); }};
}

Frame makeFrame(bool isDialog)
{
    return isDialog ? makeFrame<OmDialog2>() : makeFrame<OmWindow>();
}

QRect workArea()
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    const QRect area = screen->availableGeometry();
    return QRect(area.topLeft(), area.size() * screen->devicePixelRatio());
}

void press(DWORD button)
{
    INPUT input = {};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = button;
    SendInput(1, &input, sizeof(input));
}

// The user's hand, which goes on while the program is busy moving its window, and lets go when
// the eye sees that the window is where it should be, or after a while.
void dragByHand(const QPoint &from, const QPoint &to, HWND window, const QRect &expected)
{
    constexpr int patience = 20;
    std::atomic<bool> isDone = false;
    std::thread hand([&] {
        constexpr int steps = 10;
        SetCursorPos(from.x(), from.y());
        Sleep(100);
        press(MOUSEEVENTF_LEFTDOWN);
        for (int step = 1; step <= steps; ++step) {
            Sleep(40);
            const QPoint position = from + (to - from) * step / steps;
            SetCursorPos(position.x(), position.y());
        }
        for (int waited = 0; waited < patience && rectOf(window) != expected; ++waited)
            Sleep(100);
        press(MOUSEEVENTF_LEFTUP);
        Sleep(100);
        isDone = true;
    });
    const bool hasEnded = ombrin::test::TestCase::waitFor([&isDone] { return isDone.load(); });
    hand.join();
    QVERIFY(hasEnded);
}

} // namespace

class tst_OmWindow_win : public ombrin::test::TestCase
{
    Q_OBJECT

private:
    static void bothFrames()
    {
        QTest::addColumn<bool>("isDialog");
        QTest::newRow("window") << false;
        QTest::newRow("dialog") << true;
    }

private Q_SLOTS:

    void stayOnTopIsSwitchedThroughTheSlotsName()
    {
        const Frame frame = makeFrame(false);
        frame.showAndWait();
        QVERIFY(!frame.isTopmost());
        QVERIFY(QMetaObject::invokeMethod(frame.widget.get(), "slotAlwaysOnTop"));
        QVERIFY(frame.isTopmost());
        QVERIFY(QMetaObject::invokeMethod(frame.widget.get(), "slotAlwaysOnTopTimer"));
        QVERIFY(frame.isTopmost()); // only once the menu has closed
        QVERIFY(waitFor([&frame] { return !frame.isTopmost(); }));
    }

    void newNativeWindowGetsTheStyleAgain_data() { bothFrames(); }
    void newNativeWindowGetsTheStyleAgain()
    {
        QFETCH(bool, isDialog);
        QWidget parent; // outlives the window, which Windows would take along even when unparented
        const Frame frame = makeFrame(isDialog);
        QWidget *window = frame.widget.get();
        frame.setFixed(true);
        if (!isDialog)
            QVERIFY(QMetaObject::invokeMethod(window, "slotAlwaysOnTop"));
        frame.showAndWait();
        const auto expectStyle = [&](const char *when) {
            QVERIFY2(frame.boxes() == (systemBoxes & ~maximizeBox), when);
            QVERIFY2(frame.isTopmost() != isDialog, when);
        };
        expectStyle("at first");

        window->setWindowFlag(Qt::Tool);
        window->setWindowFlag(Qt::Tool, false);
        frame.showAndWait();
        expectStyle("flags changed");
        window->close();
        frame.showAndWait();
        expectStyle("closed and shown again");
        const Qt::WindowFlags flags = window->windowFlags();
        window->setParent(&parent, flags | Qt::Window);
        frame.showAndWait();
        expectStyle("given a parent");
        window->setParent(nullptr, flags);
        frame.showAndWait();
        expectStyle("taken from its parent");

        frame.setFixed(false);
        QCOMPARE(frame.boxes(), systemBoxes);
    }

    void maximisesToTheWorkAreaAndBack_data() { bothFrames(); }
    void maximisesToTheWorkAreaAndBack()
    {
        QFETCH(bool, isDialog);
        const Frame frame = makeFrame(isDialog);
        QCOMPARE(frame.boxes(), systemBoxes);
        frame.showAndWait();
        QCOMPARE(frame.rect(), QRect(200, 150, 400, 300)); // without a native border
        MINMAXINFO limits = {};
        SendMessageW(frame.native(), WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&limits));
        QCOMPARE(QSize(limits.ptMaxSize.x, limits.ptMaxSize.y), workArea().size());

        QTest::mouseDClick(frame.widget.get(), Qt::LeftButton, Qt::NoModifier, QPoint(200, 15));
        QTRY_COMPARE_WITH_TIMEOUT(frame.rect(), workArea(), 20000);
        QVERIFY(IsZoomed(frame.native()));
        QCOMPARE(frame.boxes(), systemBoxes);
        QTest::mouseDClick(frame.widget.get(), Qt::LeftButton, Qt::NoModifier, QPoint(200, 15));
        QTRY_COMPARE_WITH_TIMEOUT(frame.rect(), QRect(200, 150, 400, 300), 20000);
        QVERIFY(!IsZoomed(frame.native()));
    }

    void taskBarMenuMinimisesMaximisesAndRestores()
    {
        const Frame frame = makeFrame(false);
        frame.showAndWait();
        const auto choose = [&frame](WPARAM entry) {
            SendMessageW(frame.native(), WM_SYSCOMMAND, entry, 0);
        };
        choose(SC_MAXIMIZE);
        QVERIFY(waitFor([&frame] { return frame.widget->isMaximized(); }));
        QCOMPARE(frame.rect(), workArea());
        choose(SC_MINIMIZE);
        QVERIFY(waitFor([&frame] { return frame.widget->isMinimized(); }));
        choose(SC_RESTORE);
        QVERIFY(waitFor([&frame] { return !frame.widget->isMinimized(); }));
        choose(SC_RESTORE);
        QTRY_COMPARE_WITH_TIMEOUT(frame.rect(), QRect(200, 150, 400, 300), 20000);
    }

    void mouseMovesAndResizes_data()
    {
        // from: in the window
        const auto row = columns<bool, QPoint, QPoint, QRect>("isFixed", "from", "by", "expected");
        const QPoint title(200, 15);
        const QPoint by(60, 40);
        row("title", false, title, by, {260, 190, 400, 300});
        row("title when fixed", true, title, by, {260, 190, 400, 300});
        row("right edge", false, {398, 150}, by, {200, 150, 460, 300});
        row("bottom right corner", false, {398, 298}, by, {200, 150, 460, 340});
        row("top left corner", false, {1, 1}, by, {260, 190, 340, 260});
    }
    void mouseMovesAndResizes()
    {
        QFETCH(bool, isFixed);
        QFETCH(QPoint, from);
        QFETCH(QPoint, by);
        QFETCH(QRect, expected);
        const Frame frame = makeFrame(false);
        frame.setFixed(isFixed);
        frame.showAndWait();
        const QRect before = frame.rect();
        const QPoint start = before.topLeft() + from;
        // On a busy machine Wine now and then ends a drag while the button is still down.
        constexpr int attempts = 4;
        for (int attempt = 0; attempt < attempts && frame.rect() != expected; ++attempt) {
            frame.widget->setGeometry(before);
            QTRY_COMPARE_WITH_TIMEOUT(frame.rect(), before, 20000);
            dragByHand(start, start + by, frame.native(), expected);
        }
        QTRY_COMPARE_WITH_TIMEOUT(frame.rect(), expected, 20000);
        QTRY_COMPARE_WITH_TIMEOUT(frame.widget->geometry(), expected, 20000);
    }
};

OMBRIN_TEST_MAIN(tst_OmWindow_win)
#include "tst_omwindow_win.moc"
