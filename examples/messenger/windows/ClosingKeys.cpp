#include "windows/ClosingKeys.h"

#include <QShortcut>
#include <QtWidgets/QWidget>

namespace messenger {

void addClosingKeys(QWidget *window)
{
    for (const QKeySequence::StandardKey key : {QKeySequence::Cancel, QKeySequence::Close}) {
        auto *shortcut = new QShortcut(QKeySequence(key), window);
        QObject::connect(shortcut, &QShortcut::activated, window, &QWidget::close);
    }
}

} // namespace messenger
