#include "platform/NativeWindow_win.h"
#include "platform/PlainWindow.h"

#include <ombrin/OmQtCompat.h>

namespace NativeWindow = ombrin::NativeWindow;
using NativeWindow::Handle;

namespace {

constexpr LONG systemBoxes = 0xB0000;

class Window : public ombrin::test::PlainWindow
{
public:
    HWND native() { return reinterpret_cast<HWND>(handle()); }
    LONG style() { return GetWindowLongW(native(), GWL_STYLE); }
    bool isTopmost() { return (GetWindowLongW(native(), GWL_EXSTYLE) & WS_EX_TOPMOST) != 0; }
    void showAndWait()
    {
        show();
        QVERIFY(QTest::qWaitForWindowActive(this));
    }

    QSize maximumSize;      // the answer to the system's question, when valid
    int captionChanges = 0; // how often the caption was drawn anew

protected:
    bool nativeEvent(const QByteArray &, void *message, ombrin::NativeEventResult *) override
    {
        captionChanges += static_cast<MSG *>(message)->message == WM_NCACTIVATE ? 1 : 0;
        if (maximumSize.isValid())
            NativeWindow::answerMaximumSize(message, maximumSize.width(), maximumSize.height());
        return false;
    }
};

// The first of the windows that the system puts above the other.
HWND upper(HWND one, HWND other)
{
    for (HWND window = GetTopWindow(nullptr); window; window = GetWindow(window, GW_HWNDNEXT)) {
        if (window == one || window == other)
            return window;
    }
    return nullptr;
}

} // namespace

class tst_NativeWindow_win : public ombrin::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void systemBoxesAreAddedAndNothingElse()
    {
        Window window;
        const LONG before = window.style();
        NativeWindow::addSystemBoxes(window.handle());
        QCOMPARE(window.style(), before | systemBoxes);
        window.showAndWait();
        QCOMPARE(window.style() & systemBoxes, systemBoxes);
        QCOMPARE(window.geometry(), QRect(100, 100, 300, 200));
    }

    void broughtToFrontWithoutStayingThere()
    {
        for (const bool wasOnTop : {false, true}) {
            Window clock;
            clock.showAndWait();
            NativeWindow::setStayOnTop(clock.handle(), true);
            Window window;
            window.showAndWait();
            NativeWindow::setStayOnTop(window.handle(), wasOnTop);
            Window other;
            other.showAndWait();

            NativeWindow::bringToFront(window.handle());
            QVERIFY(!window.isTopmost());
            QCOMPARE(upper(window.native(), other.native()), window.native());
            QCOMPARE(upper(window.native(), clock.native()), clock.native());
            QCOMPARE(window.geometry(), QRect(100, 100, 300, 200));
        }
    }

    void flashesCaptionAndTaskBarButtonThreeTimes()
    {
        Window window;
        const FLASHWINFO request = NativeWindow::flashRequest(window.native());
        QCOMPARE(request.cbSize, UINT(sizeof(FLASHWINFO)));
        QCOMPARE(request.hwnd, window.native());
        QCOMPARE(request.dwFlags, DWORD(3));
        QCOMPARE(request.uCount, UINT(3));
        QCOMPARE(request.dwTimeout, DWORD(0));

        window.showAndWait();
        Window other;
        other.showAndWait();
        const int before = window.captionChanges;
        NativeWindow::flash(window.handle());
        QVERIFY(window.captionChanges > before);
    }

    void maximumSizeIsAnswered()
    {
        MINMAXINFO limits = {};
        limits.ptMaxPosition = {-4, -4};
        MSG message = {};
        message.message = WM_SIZE;
        message.lParam = reinterpret_cast<LPARAM>(&limits);
        QVERIFY(!NativeWindow::answerMaximumSize(&message, 800, 600));
        QCOMPARE(limits.ptMaxSize.x, LONG(0));

        message.message = WM_GETMINMAXINFO;
        QVERIFY(NativeWindow::answerMaximumSize(&message, 800, 600));
        QCOMPARE(limits.ptMaxSize.x, LONG(800));
        QCOMPARE(limits.ptMaxSize.y, LONG(600));
        QCOMPARE(limits.ptMaxPosition.x, LONG(-4));
        QCOMPARE(limits.ptMaxPosition.y, LONG(-4));

        message.lParam = 0;
        QVERIFY(!NativeWindow::answerMaximumSize(&message, 800, 600));
        QVERIFY(!NativeWindow::answerMaximumSize(nullptr, 800, 600));

        Window window; // what the system hears
        window.maximumSize = QSize(777, 555);
        SendMessageW(window.native(), WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&limits));
        QCOMPARE(limits.ptMaxSize.x, LONG(777));
        QCOMPARE(limits.ptMaxSize.y, LONG(555));
    }

    void strangeHandlesAreHarmless_data() { ombrin::test::addStrangeHandles(); }
    void strangeHandlesAreHarmless()
    {
        QFETCH(Handle, handle);
        ombrin::test::callEverythingOn(handle);
        QVERIFY(!IsWindow(reinterpret_cast<HWND>(handle)));
    }
};

OMBRIN_TEST_MAIN(tst_NativeWindow_win)
#include "tst_nativewindow_win.moc"
