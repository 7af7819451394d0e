#include <ombrin/OmLineEdit.h>

#include <ombrin/OmDesktop.h>

#include "widgets/LineEditChange.h"

#include <QtGui/QFocusEvent>
#include <QtWidgets/QApplication>

namespace ombrin {

namespace {

constexpr QColor kHintColor(128, 128, 128);

} // namespace

OmLineEdit::OmLineEdit(QWidget *parent)
    : QLineEdit(parent)
{
    useHintColor();
    // Also text that comes from the host must not look like a hint.
    connect(this, &QLineEdit::textChanged, this, [this] {
        if (m_hasHintColor && !showsMessage())
            useTextColor();
    });
}

OmLineEdit::~OmLineEdit() = default;

void OmLineEdit::setNoFocusMessage(const QString &message)
{
    // First, so that receivers of textChanged() do not take the message for text.
    m_noFocusMessage = message;
    replaceText(message);
}

QString OmLineEdit::noFocusMessage() const
{
    return m_noFocusMessage;
}

QString OmLineEdit::text() const
{
    return showsMessage() ? QString() : QLineEdit::text();
}

void OmLineEdit::updateFocusMessage()
{
    if (!hasFocus() && text().isEmpty())
        showMessage();
}

void OmLineEdit::focusInEvent(QFocusEvent *event)
{
    if (showsMessage()) {
        useTextColor();
        // Unlike clear() it leaves nothing behind that could be brought back by undoing.
        QLineEdit::setText(QString());
    }
    QLineEdit::focusInEvent(event);
}

void OmLineEdit::focusOutEvent(QFocusEvent *event)
{
    if (event->reason() != Qt::PopupFocusReason && text().isEmpty())
        showMessage();
    QLineEdit::focusOutEvent(event);
}

void OmLineEdit::dropEvent(QDropEvent *event)
{
    const bool showedMessage = showsMessage();
    if (showedMessage)
        QLineEdit::setText(QString()); // else the text would land in its middle
    QLineEdit::dropEvent(event);
    if (showedMessage)
        updateFocusMessage(); // there may have been nothing to drop
}

bool OmLineEdit::showsMessage() const
{
    return QLineEdit::text() == m_noFocusMessage.left(maxLength());
}

void OmLineEdit::showMessage()
{
    useHintColor();
    replaceText(m_noFocusMessage);
}

void OmLineEdit::replaceText(const QString &text)
{
    changeText(this, [this, &text] { QLineEdit::setText(text); });
}

void OmLineEdit::useHintColor()
{
    OmDesktop::setTextColor(this, kHintColor);
    m_hasHintColor = true;
}

void OmLineEdit::useTextColor()
{
    const QPalette palette =
            parentWidget() ? parentWidget()->palette() : QApplication::palette(this);
    OmDesktop::setTextColor(this, palette.color(QPalette::Text));
    m_hasHintColor = false;
}

} // namespace ombrin
