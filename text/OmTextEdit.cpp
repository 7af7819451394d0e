#include <ombrin/OmTextEdit.h>

#include <ombrin/OmSpelling.h>
#include <ombrin/OmTextEditSyntax.h>

#include "text/PastedText.h"
#include "text/SpellingMenu.h"
#include "text/WordEnds.h"

#include <QtCore/QMimeData>
#include <QtCore/QPointer>
#include <QtCore/QScopedValueRollback>
#include <QtGui/QContextMenuEvent>
#include <QtGui/QTextBlock>
#include <QtGui/QTextLayout>

#include <algorithm>

namespace ombrin {

namespace {

// What is not part of a word, though it may touch it.
constexpr QStringView kSeparators(u" *?/>.<,\"':;|\\}]{[+=_-)(@!~`");
static_assert(kSeparators.size() == 28);

bool isSeparator(QChar c)
{
    return kSeparators.contains(c);
}

// Null if there is none. Qt has a format of its own for it, which any program can offer.
QString htmlOf(const QMimeData &data)
{
    if (data.hasHtml())
        return data.html();
    const QString richText = QStringLiteral("application/x-qrichtext");
    return data.hasFormat(richText) ? QString::fromUtf8(data.data(richText)) : QString();
}

QString withoutSeparators(QString text)
{
    const auto end = std::remove_if(text.begin(), text.end(), isSeparator);
    text.truncate(static_cast<int>(end - text.begin()));
    return text;
}

} // namespace

OmTextEdit::OmTextEdit(QWidget *parent)
    : QTextEdit(parent)
    , m_syntax(new OmTextEditSyntax(this))
{
    connect(document(), &QTextDocument::contentsChange, this, &OmTextEdit::slotContentChange);
}

OmTextEdit::~OmTextEdit() = default;

void OmTextEdit::setMaxLength(int length)
{
    m_maxLength = length;
}

int OmTextEdit::maxLength() const
{
    return m_maxLength;
}

void OmTextEdit::setSpellChecking(bool on)
{
    OmSpelling *spelling = OmSpelling::instance();
    if (!spelling->isAvailable())
        return;
    m_spellChecking = on;
    connect(this, &QTextEdit::textChanged, this, &OmTextEdit::slotTextChanged,
            Qt::UniqueConnection);
    spelling->setEnabled(on);
    m_syntax->setSpellChecking(on);
    rehighlight();
}

bool OmTextEdit::useSpellChecking() const
{
    return m_spellChecking;
}

void OmTextEdit::setRegardCase(bool on)
{
    m_regardCase = on;
    OmSpelling::instance()->setRegardCase(on);
    rehighlight();
}

bool OmTextEdit::useRegardCase() const
{
    return m_regardCase;
}

void OmTextEdit::setDict(const QString &names)
{
    OmSpelling::instance()->setDict(names);
}

QString OmTextEdit::dict()
{
    return OmSpelling::instance()->dict();
}

QStringList OmTextEdit::availDicts()
{
    return OmSpelling::instance()->availDicts();
}

// Costs the same however long the text is: it is never copied, and only paragraphs that hold the
// word are highlighted anew.
void OmTextEdit::slotTextChanged()
{
    OmSpelling *spelling = OmSpelling::instance();
    if (m_isChecking || !spelling->isAvailable() || spelling->dict().isEmpty())
        return;
    const QScopedValueRollback<bool> guard(m_isChecking, true);
    if (m_syntax->document() != document())
        m_syntax->setDocument(document());
    if (!endsInWordEnd())
        return;
    const QString word = wordBeforeCursor();
    if (!word.isEmpty())
        setMisspelled(word, !spelling->checkWord(word));
}

void OmTextEdit::slotContentChange(int, int, int) {}

// A changed underline is a changed text to Qt, but no reason to check the word before the cursor.
void OmTextEdit::rehighlight()
{
    const QScopedValueRollback<bool> guard(m_isChecking, true);
    m_syntax->rehighlight();
}

bool OmTextEdit::endsInWordEnd() const
{
    // The last character is the end of the last paragraph.
    const int last = document()->characterCount() - 2;
    if (last < 0)
        return false;
    const QChar c = document()->characterAt(last);
    return isWordEnd(c) || c == QChar(QChar::Nbsp);
}

// Qt takes a run of punctuation for a word: the search begins at the last letter before it.
QString OmTextEdit::wordBeforeCursor() const
{
    QTextCursor cursor = textCursor();
    const bool isComposing = !cursor.block().layout()->preeditAreaText().isEmpty();
    if (isComposing || cursor.position() == 0)
        return QString();
    cursor.setPosition(cursor.position() - 1);
    const QString paragraph = cursor.block().text();
    int letter = cursor.positionInBlock() - 1;
    while (letter >= 0 && isSeparator(paragraph.at(letter)))
        --letter;
    if (letter < 0)
        return QString();
    cursor.setPosition(cursor.block().position() + letter);
    cursor.select(QTextCursor::WordUnderCursor);
    return withoutSeparators(cursor.selectedText());
}

void OmTextEdit::setMisspelled(const QString &word, bool on)
{
    if (m_syntax->isMisspelled(word) == on)
        return;
    if (on)
        m_syntax->addMisspelledWord(word);
    else
        m_syntax->removeMisspelledWord(word);
    const QScopedValueRollback<bool> guard(m_isChecking, true);
    m_syntax->rehighlightWord(word);
}

void OmTextEdit::keyPressEvent(QKeyEvent *event)
{
    const int key = event->key();
    if (event->modifiers() != Qt::NoModifier && key != Qt::Key_Enter) {
        QTextEdit::keyPressEvent(event);
        return;
    }
    switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        event->accept();
        Q_EMIT enterPressed();
        return;
    case Qt::Key_Escape:
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
    case Qt::Key_Backspace:
        QTextEdit::keyPressEvent(event);
        return;
    default:
        break;
    }
    const int length = document()->characterCount() - 1;
    if (m_maxLength > 0 && length == m_maxLength)
        event->accept();
    else
        QTextEdit::keyPressEvent(event);
}

void OmTextEdit::resizeEvent(QResizeEvent *event)
{
    const QPointer<OmTextEdit> self(this);
    Q_EMIT resize();
    if (self)
        QTextEdit::resizeEvent(event);
}

void OmTextEdit::insertFromMimeData(const QMimeData *source)
{
    const QString html = source ? htmlOf(*source) : QString();
    if (html.isNull() || isReadOnly()) {
        QTextEdit::insertFromMimeData(source);
        return;
    }
    insertPlainText(pastedText(html));
    ensureCursorVisible();
    setFocus(Qt::OtherFocusReason);
}

void OmTextEdit::contextMenuEvent(QContextMenuEvent *event)
{
    OmSpelling *spelling = OmSpelling::instance();
    const bool isChecked = spelling->isAvailable() && m_spellChecking;
    if (!isChecked || isReadOnly() || document()->isEmpty()) {
        showStandardMenu(event->globalPos());
        return;
    }
    QTextCursor cursor = cursorForPosition(event->pos());
    cursor.select(QTextCursor::WordUnderCursor);
    const QString word = withoutSeparators(cursor.selectedText());
    if (word.isEmpty() || spelling->checkWord(word))
        showStandardMenu(event->globalPos());
    else
        showSpellingMenu(word, cursor, event->globalPos());
}

void OmTextEdit::showStandardMenu(const QPoint &position)
{
    const QPointer<QMenu> menu = createStandardContextMenu();
    if (!menu)
        return;
    menu->exec(position);
    delete menu;
}

// Whoever runs while the menu is open may delete the text edit, its document or the menu, or change
// the text.
void OmTextEdit::showSpellingMenu(const QString &word, QTextCursor cursor, const QPoint &position)
{
    const QPointer<OmTextEdit> self(this);
    const QString selected = cursor.selectedText();
    const QPointer<SpellingMenu> menu = new SpellingMenu(word, position);
    const QAction *chosen = menu->exec(position);
    const bool isAdd = menu && chosen && chosen == menu->addToDictionaryAction();
    const QString suggestion = menu && chosen ? SpellingMenu::suggestionOf(chosen) : QString();
    delete menu;
    if (!self)
        return;
    if (isAdd) {
        setMisspelled(word, false);
        OmSpelling::instance()->addToDictionary(word);
        return;
    }
    if (suggestion.isEmpty() || cursor.isNull() || cursor.selectedText() != selected)
        return;
    cursor.beginEditBlock();
    cursor.insertText(suggestion);
    cursor.endEditBlock();
    OmSpelling::instance()->replaceWord(word, suggestion);
}

} // namespace ombrin
