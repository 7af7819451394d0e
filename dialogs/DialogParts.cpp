#include "dialogs/DialogParts.h"

#include "skin/SkinPixmap.h"
#include "windows/FramePainter.h"

#include <ombrin/OmDialog2.h>

#include <QtGui/QScreen>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

#include <algorithm>

namespace ombrin {

namespace {

constexpr QSize kIconSize(48, 48);
constexpr QSize kButtonSize(110, 26);

} // namespace

QLabel *createIconLabel(QWidget *dialog)
{
    auto *label = new QLabel(dialog);
    label->setAlignment(Qt::AlignCenter);
    label->setFixedSize(kIconSize);
    return label;
}

void showDialogIcon(QLabel *iconLabel)
{
    iconLabel->setPixmap(skinPixmap(QStringLiteral(":/chat-32")));
}

QPushButton *createDialogButton(QWidget *dialog)
{
    auto *button = new QPushButton(dialog);
    button->setFixedSize(kButtonSize);
    return button;
}

QHBoxLayout *createButtonRow(std::initializer_list<QPushButton *> buttons)
{
    const auto addSpacer = [](QHBoxLayout *row) {
        row->addItem(new QSpacerItem(1, 1, QSizePolicy::Expanding, QSizePolicy::Minimum));
    };
    auto *row = new QHBoxLayout;
    addSpacer(row);
    for (QPushButton *button : buttons)
        row->addWidget(button);
    addSpacer(row);
    return row;
}

void makeRoomForTitle(OmDialog2 *dialog)
{
    auto *column = qobject_cast<QBoxLayout *>(dialog->layout());
    if (!column)
        return;
    const int width = std::min(frameWidthForTitle(dialog->windowTitleOnly(), dialog->font()),
                               dialog->screen()->availableGeometry().width() * 3 / 4);
    const QMargins margins = dialog->contentsMargins() + column->contentsMargins();
    column->addStrut(width - margins.left() - margins.right());
}

} // namespace ombrin
