#pragma once

#include <ombrin/OmGlobal.h>

#include <QtWidgets/QLineEdit>

namespace ombrin {

/// A line edit that says what belongs into it while it is empty and has no focus.
///
/// \code
/// auto *name = new ombrin::OmLineEdit(this);
/// name->setNoFocusMessage(tr("Name or e-mail address"));
/// // and later:
/// if (!name->text().isEmpty()) // never the message
///     search(name->text());
/// \endcode
///
/// The message is put into the line edit as its text, in grey; it goes when the line edit gets the
/// focus and comes back when it is left empty. text() and the property of that name never give it
/// away, but QLineEdit::text() and textChanged() see it. A user who types exactly the message has
/// typed nothing, and text that is dropped on the message takes its place. Where the line edit's
/// maximum length cuts the message off, what is left of it counts as the message.
///
/// The text colour is set as a style sheet, which replaces a style sheet of the host. All other
/// text has the text colour of the parent widget's palette, or that of the application's line edits
/// for a line edit without a parent. A context menu or another pop-up of the line edit does not
/// count as leaving it.
///
/// The line edit may be deleted in a slot of the signals that setNoFocusMessage() and
/// updateFocusMessage() cause. Where the user causes them, by typing or by moving the focus, Qt
/// allows deleteLater() only.
///
/// \ingroup widgets
class OMBRIN_GUI_EXPORT OmLineEdit : public QLineEdit
{
    Q_OBJECT

    /// What is shown while the line edit is empty and has no focus.
    Q_PROPERTY(QString noFocusMessage READ noFocusMessage WRITE setNoFocusMessage)
    // QLineEdit's property of this name would give away the message.
    Q_PROPERTY(QString text READ text WRITE setText USER true)

public:
    explicit OmLineEdit(QWidget *parent = nullptr);
    ~OmLineEdit() override;

    /// Makes \a message the text of the line edit at once, whatever it held. Its colour stays.
    void setNoFocusMessage(const QString &message);
    QString noFocusMessage() const;

    /// What the user has typed; empty while the message is shown.
    QString text() const;

    /// Shows the message if the line edit is empty and has no focus. To be called after the host
    /// has emptied it.
    void updateFocusMessage();

protected:
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    bool showsMessage() const;
    void showMessage();
    void replaceText(const QString &text);
    void useHintColor();
    void useTextColor();

    QString m_noFocusMessage;
    bool m_hasHintColor = false;
};

} // namespace ombrin
