#pragma once

#include <ombrin/OmDialog2.h>

class QLabel;
class QPushButton;

namespace ombrin {

/// A skinned box with a message and one button, or a question and two.
///
/// Used through its two static calls, which show a box modally and destroy it again:
///
/// \code
/// if (ombrin::OmMessageBox::question(window, tr("Block contact"), tr("Block Ada?")))
///     block(contact);
/// else
///     ombrin::OmMessageBox::information(window, tr("Block contact"), tr("Ada is not blocked."));
/// \endcode
///
/// Both return a result code of QDialog: \c Accepted (1) for "Yes", \c Rejected (0) for every other
/// answer: "Ok", "No", Escape and the close button. They also return \c Rejected when the box is
/// destroyed while it is open, because its parent is, for example.
///
/// As in a QLabel a text that looks like HTML is shown as rich text, and no text is wrapped: break
/// lines where they should break, and escape what other people wrote with toHtmlEscaped().
///
/// The buttons and their texts follow a change of the application's language. Without the skin's
/// picture \c chat-32 the place of the icon stays empty.
///
/// \ingroup dialogs
class OMBRIN_GUI_EXPORT OmMessageBox : public OmDialog2
{
    Q_OBJECT

public:
    /// A box without text whose three buttons are all visible. \a parent may be null.
    explicit OmMessageBox(QWidget *parent = nullptr);
    ~OmMessageBox() override;

    /// Shows \a text with the button "Ok" and waits until it is closed. Blocks \a parent, which may
    /// be null: the box then blocks no window.
    static int information(QWidget *parent, const QString &title, const QString &text);

    /// Shows \a text with the buttons "Yes", which Enter presses, and "No", and waits for the
    /// answer. Blocks \a parent as information() does.
    static int question(QWidget *parent, const QString &title, const QString &text);

private:
    enum class Kind { Information, Question };

    static int ask(Kind kind, QWidget *parent, const QString &title, const QString &text);
    void setTexts();
    void become(Kind kind);

    QLabel *m_iconLabel;
    QLabel *m_textLabel;
    QPushButton *m_okButton;
    QPushButton *m_yesButton;
    QPushButton *m_noButton;
};

} // namespace ombrin
