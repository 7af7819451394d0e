#include "dialogs/EventWatcher.h"

#include <QtCore/QEvent>
#include <QtCore/QPointer>
#include <QtWidgets/QWidget>

namespace ombrin {

EventWatcher::EventWatcher(QWidget *widget, Function function)
    : QObject(widget)
    , m_function(std::move(function))
{
    widget->installEventFilter(this);
}

bool EventWatcher::eventFilter(QObject *watched, QEvent *event)
{
    const QPointer<QObject> widget(watched);
    const Function function = m_function; // outlives this object, should the widget die
    function(event);
    return !widget;
}

void whenLanguageChanges(QWidget *widget, const std::function<void()> &function)
{
    new EventWatcher(widget, [function](const QEvent *event) {
        if (event->type() == QEvent::LanguageChange)
            function();
    });
}

} // namespace ombrin
