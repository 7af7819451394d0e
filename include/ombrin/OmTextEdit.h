#pragma once

#include <ombrin/OmGlobal.h>

#include <QtWidgets/QTextEdit>

namespace ombrin {

class OmTextEditSyntax;

/// The field in which a chat message is written: sends on Return, pastes plain text, limits what is
/// typed and checks the spelling meanwhile.
///
/// \code
/// auto *input = new ombrin::OmTextEdit(this);
/// input->setMaxLength(4000);
/// input->setDict(QStringLiteral("en_US,de_DE"));
/// input->setSpellChecking(true);
/// connect(input, &ombrin::OmTextEdit::enterPressed, this, [=] { send(input->toPlainText()); });
/// \endcode
///
/// A word is checked when the text ends in a blank, a comma, a question mark, an exclamation mark
/// or a full stop and the text cursor stands behind the word. Misspelt words are underlined
/// wherever they stand (see OmTextEditSyntax); their context menu offers suggestions. The menu
/// opens at once: suggestions that are still being looked for come in while it is open. A read-only
/// edit underlines, but offers none.
///
/// Formatted text is pasted and dropped as plain text without pictures, its runs of white space
/// made one; nothing it refers to is loaded.
///
/// All text edits share OmSpelling, and with it the dictionary, regard of case and whether anything
/// is checked. Without a dictionary no word is misspelt.
///
/// The text edit may be deleted while its context menu is open; in slots of its signals use
/// deleteLater().
///
/// \ingroup text
class OMBRIN_GUI_EXPORT OmTextEdit : public QTextEdit
{
    Q_OBJECT

    Q_PROPERTY(int maxLength READ maxLength WRITE setMaxLength)
    Q_PROPERTY(bool spellChecking READ useSpellChecking WRITE setSpellChecking)
    Q_PROPERTY(bool regardCase READ useRegardCase WRITE setRegardCase)
    Q_PROPERTY(QString dict READ dict WRITE setDict)

public:
    explicit OmTextEdit(QWidget *parent = nullptr);
    ~OmTextEdit() override;

    using QTextEdit::resize;

    /// The number of characters at which typing ends; 0, as it is at first, or less for no limit.
    /// At the limit only Return, Enter, Escape, Tab, Backspace and keys with modifiers do
    /// something. What is pasted or set is not limited.
    void setMaxLength(int length);
    int maxLength() const;

    /// Switches checking and the underlines on or off, as they are at first. Does nothing while
    /// OmSpelling is not available.
    void setSpellChecking(bool on);
    bool useSpellChecking() const;

    /// Whether upper and lower case must be right; see OmSpelling::setRegardCase().
    void setRegardCase(bool on);
    bool useRegardCase() const;

    /// The dictionaries in use, separated by commas; see OmSpelling::setDict().
    void setDict(const QString &names);
    QString dict();
    /// The names of all dictionaries there are.
    QStringList availDicts();

Q_SIGNALS:
    /// The user has pressed Return or Enter. The text is unchanged.
    void enterPressed();
    /// The text edit is about to take a new size.
    void resize();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void insertFromMimeData(const QMimeData *source) override;

private Q_SLOTS:
    void slotTextChanged();
    void slotContentChange(int pos, int removed, int added);

private:
    void rehighlight();
    bool endsInWordEnd() const;
    QString wordBeforeCursor() const;
    void setMisspelled(const QString &word, bool on);
    void showStandardMenu(const QPoint &position);
    void showSpellingMenu(const QString &word, QTextCursor cursor, const QPoint &position);

    OmTextEditSyntax *m_syntax;
    bool m_spellChecking = false;
    bool m_regardCase = false;
    bool m_isChecking = false;
    int m_maxLength = 0;
};

} // namespace ombrin
