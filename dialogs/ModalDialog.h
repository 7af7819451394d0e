#pragma once

#include <QtCore/QPointer>

namespace ombrin {

/// Owns a dialog on the heap for the time of one modal call. The dialog may be gone before: host
/// code that runs meanwhile can destroy it, or its parent.
template <typename Dialog>
class ModalDialog
{
public:
    explicit ModalDialog(Dialog *dialog)
        : m_dialog(dialog)
    {}
    ~ModalDialog() { delete m_dialog; }
    Q_DISABLE_COPY(ModalDialog)

    Dialog *operator->() const { return m_dialog; }

    /// Runs the dialog. Its result, or Dialog::Rejected when it is gone and cannot be asked.
    int exec()
    {
        const int result = m_dialog ? m_dialog->exec() : Dialog::Rejected;
        return m_dialog ? result : Dialog::Rejected;
    }

private:
    QPointer<Dialog> m_dialog;
};

} // namespace ombrin
