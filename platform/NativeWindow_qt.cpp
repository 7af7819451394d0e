#include "platform/NativeWindow.h"

#include <QtCore/QString>
#include <QtGui/QCursor>
#include <QtGui/QGuiApplication>
#include <QtGui/QWindow>

namespace ombrin::NativeWindow {

namespace {

// Looks among the windows that exist: QWindow::winId() would create the missing ones.
QWindow *findWindow(Handle handle)
{
    if (handle == 0)
        return nullptr;
    const QWindowList windows = QGuiApplication::allWindows();
    for (QWindow *window : windows) {
        if (window->handle() && window->winId() == handle)
            return window;
    }
    return nullptr;
}

// The X11 plug-in keeps requests made from a timer or a socket to itself until the next X event
// arrives, so that a chat flashed from the network would stay dark until the mouse moves. Asking
// for the pointer waits for the server's answer and thereby sends everything before it, and unlike
// QGuiApplication::sync() it delivers no event into the caller's stack.
void sendRequests()
{
    (void)QCursor::pos();
}

// The other plug-ins cannot, and say so with a warning.
bool canRaiseWindows()
{
    return QGuiApplication::platformName() == QLatin1String("xcb");
}

} // namespace

void addSystemBoxes(Handle handle)
{
    QWindow *window = findWindow(handle);
    if (!window)
        return;
    window->setFlags(window->flags() | Qt::WindowSystemMenuHint | Qt::WindowMinMaxButtonsHint);
    sendRequests();
}

void setMaximizeBox(Handle handle, bool on)
{
    QWindow *window = findWindow(handle);
    if (!window)
        return;
    window->setFlag(Qt::WindowMaximizeButtonHint, on);
    sendRequests();
}

void setStayOnTop(Handle handle, bool on)
{
    QWindow *window = findWindow(handle);
    if (!window)
        return;
    window->setFlag(Qt::WindowStaysOnTopHint, on);
    sendRequests();
}

void bringToFront(Handle handle)
{
    QWindow *window = findWindow(handle);
    if (!window)
        return;
    window->setFlag(Qt::WindowStaysOnTopHint, false);
    if (!canRaiseWindows() || !window->isVisible())
        return;
    window->raise();
    const bool isApplicationActive = QGuiApplication::focusWindow() != nullptr;
    if (isApplicationActive && !window->flags().testFlag(Qt::WindowDoesNotAcceptFocus))
        window->requestActivate();
    sendRequests();
}

void flash(Handle handle)
{
    QWindow *window = findWindow(handle);
    // A window manager does not hear a hidden window, but Qt would think the alert is on and
    // swallow the next one.
    if (!window || !window->isVisible())
        return;
    window->alert(0); // until the user comes to the window
    sendRequests();
}

bool isLeftButtonHeld()
{
    return true;
}

bool answerMaximumSize(void *, int, int)
{
    return false; // only Windows asks
}

} // namespace ombrin::NativeWindow
