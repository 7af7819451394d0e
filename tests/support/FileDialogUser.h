#pragma once

#include "support/TestCase.h"

#include <functional>

namespace ombrin::test {

/// Calls \a action with each file dialog that opens as long as this lives, once it is open.
class FileDialogUser
{
public:
    explicit FileDialogUser(const std::function<void(QFileDialog *)> &action)
    {
        // The system's own dialogs cannot be driven from here.
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this, action] {
            auto *const dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
            if (!dialog || dialog == m_seen)
                return;
            m_seen = dialog;
            ++m_count;
            action(dialog);
        });
        m_timer.start(10);
    }

    /// How many dialogs have opened.
    int count() const { return m_count; }

    /// The file name that \a dialog proposes.
    static QString proposal(const QFileDialog *dialog) { return edit(dialog)->text(); }

    /// Types \a file into \a dialog and presses the save button.
    static void save(QFileDialog *dialog, const QString &file)
    {
        edit(dialog)->setText(file);
        QMetaObject::invokeMethod(dialog, "accept");
    }

private:
    static QLineEdit *edit(const QFileDialog *dialog)
    {
        return dialog->findChild<QLineEdit *>("fileNameEdit"_q);
    }

    QTimer m_timer;
    QPointer<QFileDialog> m_seen;
    int m_count = 0;
};

} // namespace ombrin::test
