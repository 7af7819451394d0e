#include "dialogs/DialogParts.h"

#include "skin/SkinPixmap.h"

#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

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

} // namespace ombrin
