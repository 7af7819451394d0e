#pragma once

#include <QtCore/QObject>

class QWidget;

namespace ombrin {

/// Tells whether the Enter key of the keypad, when it is released over a window, was pressed for
/// something else: for a list that popped up, a text that takes line breaks, or another window,
/// such as a question, that the key closed.
class EnterKeyWatcher : public QObject
{
public:
    explicit EnterKeyWatcher(QWidget *window);

    bool wasPressedElsewhere() const { return m_pressedElsewhere; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *m_window;
    bool m_pressedElsewhere = false;
};

} // namespace ombrin
