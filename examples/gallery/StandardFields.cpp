#include "StandardControls.h"

#include "PageKit.h"

#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDateTimeEdit>
#include <QtWidgets/QDial>
#include <QtWidgets/QDoubleSpinBox>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QSlider>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QToolButton>

namespace gallery {

namespace {

/// Buttons, fields, sliders and bars, a row of each.
class StandardFields
{
    Q_DECLARE_TR_FUNCTIONS(StandardFields)

public:
    static QLayout *pushButtons();
    static QLayout *toolButtons();
    static QLayout *checkButtons();
    static QLayout *fields();
    static QLayout *sliders();
    static QLayout *bars();
};

QLayout *StandardFields::pushButtons()
{
    auto *send = new QPushButton(tr("&Send"));
    send->setDefault(true);
    auto *away = new QPushButton(tr("Away"));
    away->setCheckable(true);
    away->setChecked(true);
    QBoxLayout *buttons = controlRow();
    for (QPushButton *button : {send, new QPushButton(tr("Cancel")), away}) {
        button->setMinimumWidth(30);
        buttons->addWidget(button);
    }
    return buttons;
}

QLayout *StandardFields::toolButtons()
{
    auto *plain = new QToolButton;
    plain->setIcon(skinIcon(QStringLiteral("chat-16")));
    auto *checked = new QToolButton;
    checked->setIcon(skinIcon(QStringLiteral("addsmiley-16")));
    checked->setCheckable(true);
    checked->setChecked(true);
    auto *withMenu = new QToolButton;
    withMenu->setIcon(skinIcon(QStringLiteral("phone-16")));
    withMenu->setPopupMode(QToolButton::MenuButtonPopup);
    withMenu->setMenu(new QMenu(withMenu));
    withMenu->menu()->addAction(tr("Call at home"));
    auto *arrow = new QToolButton;
    arrow->setArrowType(Qt::DownArrow);
    auto *flat = new QToolButton;
    flat->setIcon(skinIcon(QStringLiteral("save-16")));
    flat->setText(tr("Save"));
    flat->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    flat->setAutoRaise(true);
    QBoxLayout *buttons = controlRow();
    for (QToolButton *button : {plain, checked, withMenu, arrow, flat}) {
        button->setIconSize(QSize(16, 16));
        buttons->addWidget(button);
    }
    buttons->addStretch();
    return buttons;
}

QLayout *StandardFields::checkButtons()
{
    auto *online = new QRadioButton(tr("Online"));
    online->setChecked(true);
    auto *sound = new QCheckBox(tr("Sound"));
    sound->setChecked(true);
    auto *alerts = new QCheckBox(tr("Alerts"));
    alerts->setTristate(true);
    alerts->setCheckState(Qt::PartiallyChecked);
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(6);
    grid->addWidget(online, 0, 0);
    grid->addWidget(new QRadioButton(tr("Offline")), 0, 1);
    grid->addWidget(sound, 1, 0);
    grid->addWidget(alerts, 1, 1);
    grid->addWidget(new QCheckBox(tr("Log")), 1, 2);
    for (int column = 0; column < 3; ++column)
        grid->setColumnStretch(column, 1);
    return grid;
}

QLayout *StandardFields::fields()
{
    auto *edit = new QLineEdit(tr("Ada"));
    edit->setClearButtonEnabled(true);
    auto *empty = new QLineEdit;
    empty->setPlaceholderText(tr("Type a name"));
    auto *age = new QSpinBox;
    age->setValue(36);
    auto *size = new QDoubleSpinBox;
    size->setValue(1.65);
    size->setSuffix(QStringLiteral(" m"));
    auto *date = new QDateEdit(QDate(2024, 12, 10));
    date->setDisplayFormat(QStringLiteral("yyyy-MM-dd"));
    auto *day = new QDateEdit(QDate(2024, 12, 10));
    day->setDisplayFormat(QStringLiteral("yyyy-MM-dd"));
    day->setCalendarPopup(true);
    auto *choice = new QComboBox;
    choice->addItems({tr("Friends"), tr("Family")});
    choice->setItemIcon(0, skinIcon(QStringLiteral("profile-16")));
    auto *editable = new QComboBox;
    editable->setEditable(true);
    editable->addItems({tr("London"), tr("Paris")});

    auto *grid = new QGridLayout;
    grid->setSpacing(8);
    int index = 0;
    for (QWidget *field :
         {static_cast<QWidget *>(edit), static_cast<QWidget *>(empty), static_cast<QWidget *>(age),
          static_cast<QWidget *>(size), static_cast<QWidget *>(date), static_cast<QWidget *>(day),
          static_cast<QWidget *>(choice), static_cast<QWidget *>(editable)}) {
        field->setMinimumWidth(40);
        grid->addWidget(field, index / 2, index % 2);
        ++index;
    }
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    return grid;
}

QLayout *StandardFields::sliders()
{
    auto *plain = new QSlider(Qt::Horizontal);
    plain->setValue(60);
    auto *ticks = new QSlider(Qt::Horizontal);
    ticks->setTickPosition(QSlider::TicksBelow);
    ticks->setTickInterval(10);
    ticks->setValue(30);
    auto *upright = new QSlider(Qt::Vertical);
    upright->setValue(40);
    auto *dial = new QDial;
    dial->setNotchesVisible(true);
    dial->setValue(30);
    dial->setFixedSize(56, 56);
    auto *rising = new QProgressBar;
    rising->setOrientation(Qt::Vertical);
    rising->setTextVisible(false);
    rising->setValue(60);
    auto *upDown = new QScrollBar(Qt::Vertical);
    upDown->setValue(30);
    for (QWidget *tall : {static_cast<QWidget *>(upright), static_cast<QWidget *>(rising),
                          static_cast<QWidget *>(upDown)})
        tall->setFixedHeight(78);

    auto *lying = new QVBoxLayout;
    lying->setSpacing(8);
    lying->addWidget(plain);
    lying->addWidget(ticks);
    lying->addStretch();
    QBoxLayout *layout = controlRow();
    layout->addLayout(lying, 1);
    layout->addWidget(dial);
    layout->addWidget(upright);
    layout->addWidget(rising);
    layout->addWidget(upDown);
    return layout;
}

QLayout *StandardFields::bars()
{
    auto *progress = new QProgressBar;
    progress->setValue(45);
    auto *scrollBar = new QScrollBar(Qt::Horizontal);
    scrollBar->setValue(40);
    auto *layout = new QVBoxLayout;
    layout->setSpacing(10);
    layout->addWidget(progress);
    layout->addWidget(scrollBar);
    return layout;
}

} // namespace

QWidget *createFieldsPanel()
{
    auto *panel = new QWidget;
    QVBoxLayout *column = panelColumn(panel, 8);
    for (QLayout *part : {StandardFields::pushButtons(), StandardFields::toolButtons(),
                          StandardFields::checkButtons(), StandardFields::fields(),
                          StandardFields::sliders(), StandardFields::bars()}) {
        if (column->count() > 0)
            column->addStretch();
        column->addLayout(part);
    }
    return panel;
}

} // namespace gallery
