#pragma once

#include "platform/NativeWindow.h"

#include <QtGui/QWindow>
#include <QtWidgets/QWidget>

namespace ombrin::NativeWindow {

/// The native window of \a window, or 0 while it has none.
///
/// QWidget::winId() would create one. It may also name one that is gone: the X11 plug-in replaces a
/// hidden native window whose stay-on-top hint has changed and does not tell the widget.
inline Handle handleOf(const QWidget *window)
{
    const QWindow *native = window->windowHandle();
    return native && native->handle() ? static_cast<Handle>(native->winId()) : 0;
}

} // namespace ombrin::NativeWindow
