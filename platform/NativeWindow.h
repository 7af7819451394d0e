#pragma once

#include <ombrin/OmGlobal.h>

#include <cstdint>

/// The one door to the window system: what frames and helpers need of a native window beyond what
/// Qt offers. Written in plain types, so that each platform's source stands alone.
///
/// A handle of 0, or of a window that no longer exists, makes every function do nothing. No
/// function creates a native window, replaces it with another or runs the event loop.
namespace ombrin::NativeWindow {

/// A native window as QWindow::winId() names it; see handleOf() for a widget's.
using Handle = std::uintptr_t;

/// Gives a frameless window the system menu and the minimise and maximise boxes, so that the task
/// bar offers them.
OMBRIN_AUTOTEST_EXPORT void addSystemBoxes(Handle window);

/// Adds the maximise box or takes it away.
OMBRIN_AUTOTEST_EXPORT void setMaximizeBox(Handle window, bool on);

/// Keeps the window above all others, or lets it go.
OMBRIN_AUTOTEST_EXPORT void setStayOnTop(Handle window, bool on);

/// Raises the window above all windows that are not kept on top, without leaving it there: a window
/// that was kept on top no longer is. While the application is the active one, the window becomes
/// the active window. Wayland lets no window raise itself, and an X11 window manager may rather
/// mark the window as demanding attention.
OMBRIN_AUTOTEST_EXPORT void bringToFront(Handle window);

/// Flashes the window's caption and task-bar button three times, or marks the window as demanding
/// attention where the window system has no flashing.
OMBRIN_AUTOTEST_EXPORT void flash(Handle window);

/// Whether the user still holds the left mouse button, as a move or resize by the window system
/// needs it: on Windows the mouse is asked, since a busy program hears of the release too late and
/// the window would then cling to the pointer. True where the mouse cannot be asked.
OMBRIN_AUTOTEST_EXPORT bool isLeftButtonHeld();

/// When \a message, a native message as QWidget::nativeEvent() passes it, asks for the limits of
/// the window's size: answers \a width and \a height (native pixels) as its size when maximised and
/// returns true. Does nothing for any other message.
OMBRIN_AUTOTEST_EXPORT bool answerMaximumSize(void *message, int width, int height);

} // namespace ombrin::NativeWindow
