#include "windows/MessageInput.h"

#include "windows/Pictures.h"

namespace messenger {

MessageInput::MessageInput(QWidget *parent)
    : OmTextEdit(parent)
{}

MessageInput::~MessageInput() = default;

bool MessageInput::canInsertFromMimeData(const QMimeData *source) const
{
    return holdsPictures(source) || OmTextEdit::canInsertFromMimeData(source);
}

void MessageInput::insertFromMimeData(const QMimeData *source)
{
    if (!holdsPictures(source)) {
        OmTextEdit::insertFromMimeData(source);
        return;
    }
    // Once the drag or the menu has ended: the host may open a dialog.
    const QVector<QImage> pictures = picturesIn(source);
    const auto give = [this, pictures] { Q_EMIT picturesGiven(pictures); };
    QMetaObject::invokeMethod(this, give, Qt::QueuedConnection);
}

} // namespace messenger
