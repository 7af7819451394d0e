#pragma once

#include <QtCore/QPointer>
#include <QtCore/QSignalBlocker>
#include <QtWidgets/QLineEdit>

namespace ombrin {

/// Runs \a change, which changes the text of \a edit, and lets the signals that it causes follow
/// when the line edit is done with it. A receiver may then delete the line edit, which QLineEdit
/// itself would not survive. Says whether it is still there.
template <typename Change>
bool changeText(QLineEdit *edit, Change change)
{
    const QPointer<QLineEdit> guard(edit);
    const QString oldText = edit->text();
    const int oldPosition = edit->cursorPosition();
    const bool hadSelection = edit->hasSelectedText();
    {
        const QSignalBlocker blocker(edit);
        change();
    }
    if (edit->text() != oldText)
        Q_EMIT edit->textChanged(edit->text());
    if (guard && hadSelection != edit->hasSelectedText())
        Q_EMIT edit->selectionChanged();
    if (guard && edit->cursorPosition() != oldPosition)
        Q_EMIT edit->cursorPositionChanged(oldPosition, edit->cursorPosition());
    return !guard.isNull();
}

} // namespace ombrin
