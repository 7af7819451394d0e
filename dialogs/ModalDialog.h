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

    /// Whether the dialog was accepted and is still there to be asked.
    bool exec() { return m_dialog->exec() == Dialog::Accepted && m_dialog; }

private:
    QPointer<Dialog> m_dialog;
};

} // namespace ombrin
