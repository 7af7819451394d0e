#pragma once

#include <ombrin/OmDialog2.h>

#include <QtCore/QStringList>
#include <QtWidgets/QLineEdit>

class QLabel;
class QPushButton;
class QVBoxLayout;

namespace ombrin {

/// A skinned dialog that asks for a line of text or for a choice from a list.
///
/// \code
/// bool ok = false;
/// const QString alias = ombrin::OmInputDialog::getText(window, tr("Rename contact"),
///                                                      tr("New name"), QLineEdit::Normal,
///                                                      contact.alias(), &ok);
/// if (ok)
///     contact.setAlias(alias);
/// \endcode
///
/// Both calls show a dialog modally and destroy it before they return. "Ok" and Enter accept;
/// "Cancel", Escape and the close button reject. A rejected dialog answers with a null string, so
/// an empty answer can be told from no answer even without \c ok. A dialog that is destroyed while
/// it is open, because its parent is, for example, is rejected.
///
/// The input has the keyboard focus when the dialog opens and comes first in the tab order.
///
/// \ingroup dialogs
class OMBRIN_GUI_EXPORT OmInputDialog : public OmDialog2
{
    Q_OBJECT

public:
    ~OmInputDialog() override;

    /// Asks for a line of text. Returns it, or a null string when the dialog was rejected.
    ///
    /// \param parent the window that is blocked; may be null
    /// \param title  the title of the dialog
    /// \param label  the prompt; as in a QLabel, what looks like HTML is rich text
    /// \param mode   how the text is shown; what is returned is always the text itself
    /// \param text   what the line holds at first, selected
    /// \param ok     set to whether the dialog was accepted; may be null
    static QString getText(QWidget *parent, const QString &title, const QString &label,
                           QLineEdit::EchoMode mode, const QString &text, bool *ok);

    /// Asks for one of the texts in \a list. Returns it, or a null string when the dialog was
    /// rejected.
    ///
    /// \param parent   the window that is blocked; may be null
    /// \param title    the title of the dialog
    /// \param label    the prompt; as in a QLabel, what looks like HTML is rich text
    /// \param list     the texts, in the order in which they are offered
    /// \param current  position of the text that is chosen at first, from 0. With any other number
    ///                 nothing is chosen, and accepting returns an empty text
    /// \param editable whether a text that is not in \a list may be typed
    /// \param ok       set to whether the dialog was accepted; may be null
    static QString getItem(QWidget *parent, const QString &title, const QString &label,
                           const QStringList &list, int current, bool editable, bool *ok);

private:
    explicit OmInputDialog(QWidget *parent = nullptr);

    template <typename Input, typename Prepare, typename Read>
    static QString ask(QWidget *parent, const QString &title, const QString &label, bool *ok,
                       Prepare prepare, Read read);
    void setTexts();
    void addInput(QWidget *input, const QString &label);

    QLabel *m_iconLabel;
    QLabel *m_textLabel;
    QVBoxLayout *m_inputLayout;
    QPushButton *m_okButton;
    QPushButton *m_cancelButton;
};

} // namespace ombrin
