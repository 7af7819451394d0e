#pragma once

#include "support/TestCase.h"

#include <functional>

namespace ombrin::test {

/// Calls \a use with the menu that \a open opens, once it is there, and closes it if it is still
/// there afterwards. Returns whether a menu came up.
inline bool useMenu(const std::function<void()> &open, const std::function<void(QMenu *)> &use)
{
    bool isOpen = false;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
        const QPointer<QMenu> menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        if (!menu)
            return;
        timer.stop();
        isOpen = true;
        use(menu);
        if (menu)
            menu->close();
    });
    timer.start(5);
    open();
    return isOpen;
}

/// Asks for the context menu at \a place in \a widget.
inline void askForMenu(QWidget *widget, const QPoint &place)
{
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, widget->mapToGlobal(place));
    QCoreApplication::sendEvent(widget, &event);
}

/// The texts of the entries of \a menu, with "-" for a separator.
inline QStringList entriesOf(const QMenu *menu)
{
    QStringList texts;
    const QList<QAction *> actions = menu->actions();
    for (const QAction *action : actions)
        texts.append(action->isSeparator() ? "-"_q : action->text());
    return texts;
}

} // namespace ombrin::test
