#include "platform/PlainWindow.h"
#include "support/XUser.h"

#include <ombrin/OmDesktop.h>

namespace NativeWindow = ombrin::NativeWindow;
using NativeWindow::Handle;
using namespace ombrin::test;
using ombrin::OmDesktop;

namespace {

QString xProperty(Handle window, const char *name)
{
    return runBeside("xprop"_q,
                     {"-id"_q, QString::number(window), "-notype"_q, QLatin1String(name)});
}

bool isKeptAbove(Handle window)
{
    return xProperty(window, "_NET_WM_STATE").contains("_STATE_ABOVE"_q);
}

bool demandsAttention(Handle window)
{
    return xProperty(window, "_NET_WM_STATE").contains("DEMANDS_ATTENTION"_q);
}

bool isMapped(Handle window)
{
    return runBeside("xwininfo"_q, {"-id"_q, QString::number(window)}).contains("IsViewable"_q);
}

QVector<Handle> rootWindows(const char *name)
{
    const QString list = runBeside("xprop"_q, {"-root"_q, "-notype"_q, QLatin1String(name)});
    QVector<Handle> windows;
    QRegularExpressionMatchIterator match = QRegularExpression("0x([0-9a-f]+)"_q).globalMatch(list);
    while (match.hasNext())
        windows.append(Handle(match.next().captured(1).toULongLong(nullptr, 16)));
    return windows;
}

Handle topmost()
{
    return rootWindows("_NET_CLIENT_LIST_STACKING")
            .value(rootWindows("_NET_CLIENT_LIST").size() - 1);
}

Handle active()
{
    return rootWindows("_NET_ACTIVE_WINDOW").value(0);
}

class Window : public PlainWindow
{
public:
    void showAndWait()
    {
        show();
        QVERIFY(QTest::qWaitForWindowActive(this));
        QVERIFY(TestCase::waitFor([this] { return active() == handle(); }));
    }
};

// A window of another program; starting it makes it the active one.
class OtherClient
{
public:
    OtherClient()
    {
        const QVector<Handle> before = rootWindows("_NET_CLIENT_LIST");
        m_process.setStandardOutputFile(QProcess::nullDevice());
        m_process.start("xev"_q, {"-geometry"_q, "400x300+50+50"_q});
        const bool isThere = TestCase::waitFor([this, &before] {
            const QVector<Handle> now = rootWindows("_NET_CLIENT_LIST");
            m_window = now.size() > before.size() ? now.last() : 0;
            return m_window != 0 && active() == m_window && !QGuiApplication::focusWindow();
        });
        if (!isThere)
            m_window = 0;
    }
    ~OtherClient()
    {
        m_process.terminate();
        m_process.waitForFinished();
    }
    Handle window() const { return m_window; }

private:
    QProcess m_process;
    Handle m_window = 0;
};

} // namespace

class tst_NativeWindow_x11 : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void stayOnTopReachesTheWindowManager_data()
    {
        const auto row = columns<bool>("beforeShow");
        row("on a window not shown yet", true);
        row("on a visible window", false);
    }
    void stayOnTopReachesTheWindowManager()
    {
        QFETCH(bool, beforeShow);
        Window window;
        if (beforeShow)
            NativeWindow::setStayOnTop(window.handle(), true);
        window.showAndWait();
        if (!beforeShow) {
            QVERIFY(!isKeptAbove(window.handle()));
            NativeWindow::setStayOnTop(window.handle(), true);
        }
        QVERIFY(waitFor([&window] { return isKeptAbove(window.handle()); }));

        OtherClient other;
        QVERIFY(other.window());
        QCOMPARE(topmost(), window.handle());

        // Hidden and shown again the window is still reached. The window manager forgets the state
        // of a window it lets go, even one that the window asked for meanwhile.
        window.hide();
        QVERIFY(waitFor(
                [&window] { return !rootWindows("_NET_CLIENT_LIST").contains(window.handle()); }));
        window.showAndWait();
        QVERIFY(waitFor([&window] { return isKeptAbove(window.handle()); }));
        NativeWindow::setStayOnTop(window.handle(), false);
        QVERIFY(waitFor([&window] { return !isKeptAbove(window.handle()); }));
    }

    void maximizeBoxReachesTheWindowManager()
    {
        constexpr auto functionsWith = "0x3, 0x3e";
        constexpr auto functionsWithout = "0x3, 0x2e";
        Window window;
        window.setWindowFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint
                              | Qt::WindowCloseButtonHint);
        NativeWindow::addSystemBoxes(window.handle());
        window.show();
        const auto functions = [&window] { return xProperty(window.handle(), "_MOTIF_WM_HINTS"); };
        QVERIFY(waitFor([&] { return functions().contains(QLatin1String(functionsWith)); }));
        NativeWindow::setMaximizeBox(window.handle(), false);
        QVERIFY(waitFor([&] { return functions().contains(QLatin1String(functionsWithout)); }));
        NativeWindow::setMaximizeBox(window.handle(), true);
        QVERIFY(waitFor([&] { return functions().contains(QLatin1String(functionsWith)); }));
    }

    void framelessWindowStaysTheSameWindowThroughout()
    {
        Window window;
        const Handle handle = window.handle();
        const QWindow *native = window.windowHandle();
        NativeWindow::addSystemBoxes(handle);
        window.showAndWait();
        const QString frameless = xProperty(handle, "_MOTIF_WM_HINTS");
        QVERIFY2(frameless.contains("0x2, 0x1, 0x0"_q), qPrintable(frameless));

        NativeWindow::setMaximizeBox(handle, false);
        QVERIFY(!native->flags().testFlag(Qt::WindowMaximizeButtonHint));
        NativeWindow::setMaximizeBox(handle, true);
        QVERIFY(native->flags().testFlag(Qt::WindowMaximizeButtonHint));
        NativeWindow::setStayOnTop(handle, true);
        NativeWindow::bringToFront(handle);
        NativeWindow::flash(handle);

        QVERIFY(isMapped(handle));
        QVERIFY(window.isVisible());
        QCOMPARE(window.handle(), handle);
        QCOMPARE(window.geometry(), QRect(100, 100, 300, 200));
        QCOMPARE(xProperty(handle, "_MOTIF_WM_HINTS"), frameless);
        QVERIFY(!demandsAttention(handle)); // the user is looking at it
    }

    void flashFromATimerIsSeenAtOnce()
    {
        Window window;
        QWidget child(&window); // means its window
        window.showAndWait();
        OtherClient other;
        QVERIFY(other.window());
        const Handle handle = window.handle();
        QTest::qWait(300); // what showing left to be drawn

        // No X event arrives while the observer sleeps.
        QTimer::singleShot(300, &window, [&child] { OmDesktop::flashWindow(&child, true); });
        const QString state =
                runBeside("sh"_q, {"-c"_q, "sleep 1.5; xprop -id %1 _NET_WM_STATE"_q.arg(handle)});
        QVERIFY2(state.contains("DEMANDS_ATTENTION"_q), qPrintable(state));

        window.activateWindow();
        QVERIFY(waitFor([handle] { return active() == handle && !demandsAttention(handle); }));
    }

    void hiddenWindowCanFlashOnceItIsShown()
    {
        Window window;
        NativeWindow::flash(window.handle());
        window.setAttribute(Qt::WA_ShowWithoutActivating);
        window.show();
        OtherClient other;
        QVERIFY(other.window());
        QVERIFY(!demandsAttention(window.handle()));
        NativeWindow::flash(window.handle());
        QVERIFY(waitFor([&window] { return demandsAttention(window.handle()); }));
    }

    void broughtToFrontAboveTheActiveWindowOfAnotherClient_data()
    {
        const auto row = columns<bool>("wasOnTop");
        row("plain", false);
        row("kept on top before", true);
    }
    void broughtToFrontAboveTheActiveWindowOfAnotherClient()
    {
        QFETCH(bool, wasOnTop);
        Window window;
        QWidget child(&window); // means its window
        window.showAndWait();
        NativeWindow::setStayOnTop(window.handle(), wasOnTop);
        OtherClient other;
        QVERIFY(other.window());
        QVERIFY(waitFor(
                [&] { return topmost() == (wasOnTop ? window.handle() : other.window()); }));

        OmDesktop::setForeground(&child);
        QVERIFY(waitFor([&window] {
            return topmost() == window.handle() && !isKeptAbove(window.handle());
        }));
        QCOMPARE(active(), other.window()); // the user goes on typing there
    }

    void broughtToFrontBelowWindowsKeptOnTop()
    {
        Window clock;
        NativeWindow::setStayOnTop(clock.handle(), true);
        clock.showAndWait();
        Window chat;
        chat.showAndWait();
        Window settings;
        settings.showAndWait();

        NativeWindow::bringToFront(chat.handle());
        const QVector<Handle> expected = {settings.handle(), chat.handle(), clock.handle()};
        QVERIFY(waitFor([&] { return rootWindows("_NET_CLIENT_LIST_STACKING") == expected; }));
        // The application is the active one, so the user moves to the window.
        QVERIFY(waitFor([&chat] { return active() == chat.handle(); }));
    }

    void bringingAHiddenWindowToFrontDoesNotShowIt()
    {
        Window window;
        NativeWindow::bringToFront(window.handle());
        QVERIFY(!window.isVisible() && !isMapped(window.handle()));
    }

    void strangeHandlesAreHarmless_data() { addStrangeHandles(); }
    void strangeHandlesAreHarmless()
    {
        QFETCH(Handle, handle);
        Window notCreated;
        const auto windows = QGuiApplication::allWindows().size();
        callEverythingOn(handle);
        QCOMPARE(QGuiApplication::allWindows().size(), windows);
        QVERIFY(!notCreated.testAttribute(Qt::WA_WState_Created));
        QVERIFY(!NativeWindow::answerMaximumSize(nullptr, 800, 600)); // only Windows asks
    }
};

OMBRIN_TEST_MAIN(tst_NativeWindow_x11)
#include "tst_nativewindow_x11.moc"
