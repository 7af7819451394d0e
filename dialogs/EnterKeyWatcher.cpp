#include "dialogs/EnterKeyWatcher.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QWidget>

namespace ombrin {

EnterKeyWatcher::EnterKeyWatcher(QWidget *window)
    : m_window(window)
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool EnterKeyWatcher::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        const auto *press = static_cast<const QKeyEvent *>(event);
        // The window gets the key last, and only when nobody in it took it.
        if (press->key() == Qt::Key_Enter && !press->isAutoRepeat())
            m_pressedElsewhere = watched != m_window;
    } else if (event->type() == QEvent::WindowDeactivate && watched == m_window) {
        m_pressedElsewhere = true; // what is pressed now cannot be seen
    }
    return false;
}

} // namespace ombrin
