#pragma once

#include "support/TestCase.h"

#include <ombrin/OmQtCompat.h>

#include <QtGui/QAccessible>
#include <QtGui/QImage>
#include <QtGui/QMouseEvent>

/// What tests do to single widgets, on screen or not, and what they see of them.
namespace ombrin::test {

inline void sendEnter(QWidget *widget)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    EnterEvent event(QPointF(1, 1), QPointF(1, 1), QPointF(1, 1));
#else
    EnterEvent event(QEvent::Enter);
#endif
    QCoreApplication::sendEvent(widget, &event);
}

inline void sendLeave(QWidget *widget)
{
    QEvent event(QEvent::Leave);
    QCoreApplication::sendEvent(widget, &event);
}

/// Moves the mouse to \a position in \a widget while \a buttons are held.
inline void sendMouseMove(QWidget *widget, const QPoint &position,
                          Qt::MouseButtons buttons = Qt::NoButton)
{
    QMouseEvent event(QEvent::MouseMove, position, widget->mapToGlobal(position), Qt::NoButton,
                      buttons, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}

/// Drags with the left button from one point of \a widget to another.
inline void dragInside(QWidget *widget, const QPoint &from, const QPoint &to)
{
    QTest::mousePress(widget, Qt::LeftButton, Qt::NoModifier, from);
    sendMouseMove(widget, to, Qt::LeftButton);
    QTest::mouseRelease(widget, Qt::LeftButton, Qt::NoModifier, to);
}

/// The visible window of the class \a Widget, or null.
template <typename Widget>
Widget *shown()
{
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (QWidget *widget : widgets) {
        if (auto *found = qobject_cast<Widget *>(widget); found && found->isVisible())
            return found;
    }
    return nullptr;
}

/// What \a widget and its children paint, without its background, at \a density.
inline QImage paintedOnNothing(QWidget *widget, qreal density = 1)
{
    QImage image(widget->size() * density, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(density);
    image.fill(Qt::transparent);
    // Qt counts the target's offset from the corner of what is painted.
    const QPoint corner = widget->mask().boundingRect().topLeft();
    widget->render(&image, corner, QRegion(), QWidget::DrawChildren);
    return image;
}

inline QAccessibleInterface *accessible(QWidget *widget)
{
    return QAccessible::queryAccessibleInterface(widget);
}

inline QString accessibleName(QWidget *widget)
{
    return accessible(widget)->text(QAccessible::Name);
}

inline bool isAccessiblyPressable(QWidget *widget)
{
    return accessible(widget)->actionInterface()->actionNames().contains(
            QAccessibleActionInterface::pressAction());
}

inline void pressAccessibly(QWidget *widget)
{
    accessible(widget)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
}

} // namespace ombrin::test
