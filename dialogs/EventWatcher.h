#pragma once

#include <QtCore/QObject>

#include <functional>

class QEvent;
class QWidget;

namespace ombrin {

/// Shows every event of a widget, before the widget gets it, to a function of the widget's own.
/// Belongs to the widget.
class EventWatcher : public QObject
{
public:
    using Function = std::function<void(const QEvent *)>;

    /// \a function may destroy the widget.
    EventWatcher(QWidget *widget, Function function);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    Function m_function;
};

/// Calls \a function when the language of the application changes.
void whenLanguageChanges(QWidget *widget, const std::function<void()> &function);

} // namespace ombrin
