#pragma once

#include <QtCore/QtGlobal>

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
#    include <QtGui/QEnterEvent>
#else
#    include <QtCore/QEvent>
#endif

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

} // namespace ombrin
