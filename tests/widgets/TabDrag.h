#pragma once

#include "support/TestCase.h"

#include <ombrin/OmTabBar.h>

#include <functional>

/// Drags of tabs by sent events.
///
/// Qt's offscreen platform ends every drag before it has begun. Programs that drag run on the
/// minimal platform, on which a drag has an event loop as on a real one.
namespace ombrin::test {

template <typename Test>
int runWithDrags(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "minimal:enable_fonts");
    return run<Test>(argc, argv);
}

/// A point in the left or the right half of a tab; of a tab that does not exist, empty space.
inline QPoint halfOfTab(const QTabBar &bar, int index, bool rightHalf)
{
    const QRect rect = bar.tabRect(index);
    if (rect.isNull())
        return bar.rect().bottomRight();
    const int middle = rect.left() + rect.width() / 2;
    return QPoint(rightHalf ? middle + 1 : middle, rect.center().y());
}

inline void sendMouse(QWidget *widget, QEvent::Type type, const QPoint &position)
{
    const bool moves = type == QEvent::MouseMove;
    QMouseEvent event(
            type, position, widget->mapToGlobal(position), moves ? Qt::NoButton : Qt::LeftButton,
            type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}

/// Sends an enter, move or drop event of the drag that is going on, and returns whether the widget
/// accepted it.
template <typename Event>
bool sendDrag(QWidget *widget, const QPoint &position, Qt::DropActions actions = Qt::MoveAction)
{
    QMimeData data;
    data.setData("binary/ombrin-tab"_q, QByteArray());
    Event event(position, actions, &data, Qt::LeftButton, Qt::NoModifier);
    event.ignore();
    QCoreApplication::sendEvent(widget, &event);
    return event.isAccepted();
}

inline void sendDragLeave(QWidget *widget)
{
    QDragLeaveEvent event;
    QCoreApplication::sendEvent(widget, &event);
}

/// Presses at \a from, moves by \a distance and, if a drag begins, runs \a during in its loop.
/// Returns whether a drag began.
inline bool dragTab(QTabBar *bar, const QPoint &from, const std::function<void()> &during,
                    int distance = QApplication::startDragDistance())
{
    bool dragged = false;
    const QPointer<QTabBar> guard(bar);
    QTimer loop;
    loop.setSingleShot(true);
    QObject::connect(&loop, &QTimer::timeout, [&] {
        dragged = true;
        during();
        QDrag::cancel();
    });
    loop.start(0);
    sendMouse(bar, QEvent::MouseButtonPress, from);
    if (guard)
        sendMouse(bar, QEvent::MouseMove, from + QPoint(distance, 0));
    if (guard)
        sendMouse(bar, QEvent::MouseButtonRelease, from + QPoint(distance, 0));
    return dragged;
}

/// Drags the tab \a source onto a half of the tab \a target.
inline void dragOnto(QTabBar *bar, int source, int target, bool rightHalf)
{
    const QPoint to = halfOfTab(*bar, target, rightHalf);
    QVERIFY(dragTab(bar, halfOfTab(*bar, source, true), [&] {
        QVERIFY(sendDrag<QDragEnterEvent>(bar, to));
        QVERIFY(sendDrag<QDragMoveEvent>(bar, to));
        QVERIFY(sendDrag<QDropEvent>(bar, to));
    }));
}

} // namespace ombrin::test
