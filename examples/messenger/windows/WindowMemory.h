#pragma once

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtWidgets/QWidget>

namespace messenger {

class StateFile;

/// Remembers where a window stands and how large it is, from one run to the next.
///
/// It is written shortly after each change, not only at the end, since a program may be killed.
class WindowMemory : public QObject
{
    Q_OBJECT

public:
    /// Puts \a window, which owns the memory, where it was last when it was called \a name; a
    /// window that is new gets \a size and stands about \a offset away from the middle of the
    /// screen. \a state must outlive the window.
    WindowMemory(QWidget *window, const QString &name, const QSize &size, const QPoint &offset,
                 StateFile *state);
    ~WindowMemory() override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void save();

    QWidget *m_window;
    QString m_name;
    StateFile *m_state;
    QTimer m_timer;
};

} // namespace messenger
