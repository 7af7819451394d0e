#pragma once

#include "support/TestCase.h"

#include <ombrin/OmQtCompat.h>

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

/// Drags \a data to \a place in \a widget and drops it there. Returns whether the widget took it.
inline bool dropOn(QWidget *widget, const QMimeData &data, const QPoint &place = QPoint(5, 5))
{
    const auto isTaken = [widget](auto &&event) {
        event.ignore();
        QCoreApplication::sendEvent(widget, &event);
        return event.isAccepted();
    };
    const auto action = Qt::CopyAction;
    const bool enters =
            isTaken(QDragEnterEvent(place, action, &data, Qt::LeftButton, Qt::NoModifier));
    isTaken(QDragMoveEvent(place, action, &data, Qt::LeftButton, Qt::NoModifier));
    return isTaken(QDropEvent(place, action, &data, Qt::LeftButton, Qt::NoModifier)) && enters;
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

/// The first child of \a parent, of the class \a Child, of which \a holds is true, or null.
template <typename Child, typename Condition>
Child *childWhere(const QWidget *parent, Condition holds)
{
    const auto children = parent->findChildren<Child *>();
    const auto found = std::find_if(children.begin(), children.end(), holds);
    return found == children.end() ? nullptr : *found;
}

/// Shows \a window and waits until it is the active one.
inline bool activate(QWidget *window)
{
    window->show();
    window->activateWindow();
    return QTest::qWaitForWindowActive(window, 20000);
}

inline QImage flatImage(const QSize &size, const QColor &color,
                        QImage::Format format = QImage::Format_ARGB32)
{
    QImage image(size, format);
    image.fill(color);
    return image;
}

inline QPixmap flatPixmap(const QSize &size, const QColor &color)
{
    return QPixmap::fromImage(flatImage(size, color));
}

/// How many pixels of \a image have a colour of which \a holds is true.
template <typename Condition>
int pixelCount(const QImage &image, Condition holds)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += holds(image.pixelColor(x, y)) ? 1 : 0;
    }
    return count;
}

/// What \a widget and its children paint, without its background, at \a density.
inline QImage paintedOnNothing(QWidget *widget, qreal density = 1)
{
    QImage image = flatImage(widget->size() * density, Qt::transparent,
                             QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(density);
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
