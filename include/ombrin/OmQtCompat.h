#pragma once

#include <QtCore/QPoint>
#include <QtCore/QtGlobal>
#include <QtGui/QMouseEvent>

/// \file
/// Names for what Qt 5 and Qt 6 declare differently.

namespace ombrin {

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
/// The argument of QWidget::enterEvent().
using EnterEvent = QEnterEvent;
/// The result type of QWidget::nativeEvent().
using NativeEventResult = qintptr;
#else
/// The argument of QWidget::enterEvent().
using EnterEvent = QEvent;
/// The result type of QWidget::nativeEvent().
using NativeEventResult = long;
#endif

/// Where the mouse is, in coordinates of the widget that gets \a event.
inline QPoint mousePosition(const QMouseEvent *event)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return event->position().toPoint();
#else
    return event->pos();
#endif
}

/// Where the mouse is, in screen coordinates.
inline QPoint globalMousePosition(const QMouseEvent *event)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return event->globalPosition().toPoint();
#else
    return event->globalPos();
#endif
}

} // namespace ombrin
