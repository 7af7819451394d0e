#include "StandardControls.h"

#include "PageKit.h"

#include <QAction>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QCalendarWidget>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDateTimeEdit>
#include <QtWidgets/QDial>
#include <QtWidgets/QDockWidget>
#include <QtWidgets/QDoubleSpinBox>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QSlider>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QStatusBar>
#include <QtWidgets/QTabWidget>
#include <QtWidgets/QTableWidget>
#include <QtWidgets/QTextEdit>
#include <QtWidgets/QToolBar>
#include <QtWidgets/QToolBox>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QTreeWidget>

namespace gallery {

namespace {

constexpr int kLowestView = 56;

/// The controls, one by one or in rows.
class StandardControls
{
    Q_DECLARE_TR_FUNCTIONS(StandardControls)

public:
    static QLayout *pushButtons();
    static QLayout *toolButtons();
    static QLayout *checkButtons();
    static QLayout *fields();
    static QLayout *sliders();
    static QLayout *bars();

    static QWidget *tree();
    static QWidget *table();
    static QWidget *list();
    static QWidget *text();
    static QWidget *calendar();

    static QWidget *mainWindow();
    static QWidget *menu();
    static QWidget *toolBox();
    static QWidget *tabs();

    static QString normalTitle() { return tr("Normal"); }
    static QString disabledTitle() { return tr("Disabled"); }
    static QString mirroredTitle() { return tr("Right to left"); }
};

QBoxLayout *row()
{
    auto *layout = new QHBoxLayout;
    layout->setSpacing(8);
    return layout;
}

QVBoxLayout *panelColumn(QWidget *panel, int spacing)
{
    auto *column = new QVBoxLayout(panel);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(spacing);
    return column;
}

QLayout *StandardControls::pushButtons()
{
    auto *send = new QPushButton(tr("&Send"));
    send->setDefault(true);
    auto *away = new QPushButton(tr("Away"));
    away->setCheckable(true);
    away->setChecked(true);
    QBoxLayout *buttons = row();
    for (QPushButton *button : {send, new QPushButton(tr("Cancel")), away}) {
        button->setMinimumWidth(30);
        buttons->addWidget(button);
    }
    return buttons;
}

QLayout *StandardControls::toolButtons()
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
    QBoxLayout *buttons = row();
    for (QToolButton *button : {plain, checked, withMenu, arrow, flat}) {
        button->setIconSize(QSize(16, 16));
        buttons->addWidget(button);
    }
    buttons->addStretch();
    return buttons;
}

QLayout *StandardControls::checkButtons()
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

QLayout *StandardControls::fields()
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

QLayout *StandardControls::sliders()
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
    QBoxLayout *layout = row();
    layout->addLayout(lying, 1);
    layout->addWidget(dial);
    layout->addWidget(upright);
    layout->addWidget(rising);
    layout->addWidget(upDown);
    return layout;
}

QLayout *StandardControls::bars()
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

QWidget *StandardControls::tree()
{
    auto *tree = new QTreeWidget;
    tree->setHeaderLabels({tr("Contact"), tr("City")});
    tree->setAlternatingRowColors(true);
    tree->setColumnWidth(0, 110);
    auto *friends = new QTreeWidgetItem(tree, {tr("Friends")});
    auto *ada = new QTreeWidgetItem(friends, {tr("Ada"), tr("London")});
    ada->setCheckState(0, Qt::Checked);
    auto *emmy = new QTreeWidgetItem(friends, {tr("Emmy"), tr("Erlangen")});
    emmy->setCheckState(0, Qt::Unchecked);
    new QTreeWidgetItem(new QTreeWidgetItem(tree, {tr("Family")}), {tr("Max")});
    friends->setExpanded(true);
    tree->setCurrentItem(ada);
    return tree;
}

QWidget *StandardControls::table()
{
    const QString cells[][2] = {
            {tr("Mon"), tr("Call Ada")}, {tr("Tue"), tr("Send files")}, {tr("Wed"), tr("Chat")}};
    auto *table = new QTableWidget(3, 2);
    table->setHorizontalHeaderLabels({tr("Day"), tr("Plan")});
    table->horizontalHeader()->setStretchLastSection(true);
    table->horizontalHeader()->setSortIndicator(0, Qt::AscendingOrder);
    table->horizontalHeader()->setSortIndicatorShown(true);
    table->verticalHeader()->setDefaultSectionSize(21);
    table->setColumnWidth(0, 64);
    for (int line = 0; line < 3; ++line) {
        for (int column = 0; column < 2; ++column)
            table->setItem(line, column, new QTableWidgetItem(cells[line][column]));
    }
    table->setCurrentCell(1, 1);
    return table;
}

QWidget *StandardControls::list()
{
    auto *list = new QListWidget;
    const std::pair<const char *, QString> entries[] = {{"chat-16", tr("Chat")},
                                                        {"phone-16", tr("Calls")},
                                                        {"filetransfer-16", tr("Files")},
                                                        {"webfolder-16", tr("Folders")},
                                                        {"block-16", tr("Blocked")}};
    for (const auto &[icon, name] : entries)
        list->addItem(new QListWidgetItem(skinIcon(QLatin1String(icon)), name));
    list->setCurrentRow(1);
    return list;
}

QWidget *StandardControls::text()
{
    auto *text = new QTextEdit;
    text->setPlainText(
            tr("The more I study, the more insatiable do I feel my genius for it to be."));
    return text;
}

QWidget *StandardControls::calendar()
{
    auto *calendar = new QCalendarWidget;
    calendar->setSelectedDate(QDate(2024, 12, 10));
    calendar->setHorizontalHeaderFormat(QCalendarWidget::SingleLetterDayNames);
    calendar->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    calendar->setGridVisible(true);
    return calendar;
}

QWidget *StandardControls::mainWindow()
{
    auto *window = new QMainWindow(nullptr, Qt::Widget);
    window->setContextMenuPolicy(Qt::NoContextMenu);
    window->setAutoFillBackground(true); // as Qt does for windows alone
    QMenuBar *menuBar = window->menuBar();
    menuBar->setNativeMenuBar(false);
    for (const QString &title : {tr("&Chat"), tr("&View"), tr("&Help")})
        menuBar->addMenu(title)->addAction(tr("An entry"));

    QToolBar *toolBar = window->addToolBar(tr("Tools"));
    toolBar->setIconSize(QSize(16, 16));
    toolBar->addAction(skinIcon(QStringLiteral("chat-16")), tr("Chat"));
    toolBar->addAction(skinIcon(QStringLiteral("phone-16")), tr("Call"));
    toolBar->addSeparator();
    toolBar->addAction(skinIcon(QStringLiteral("save-16")), tr("Save"));

    auto *dock = new QDockWidget(tr("Notes"));
    auto *notes = new QListWidget;
    notes->addItems({tr("Tea at four"), tr("Letters")});
    notes->setMinimumSize(84, 20);
    dock->setWidget(notes);
    window->addDockWidget(Qt::LeftDockWidgetArea, dock);
    auto *centre = new QTextEdit;
    centre->setPlainText(tr("Hello!"));
    centre->setMinimumSize(64, 20);
    window->setCentralWidget(centre);
    window->statusBar()->setSizeGripEnabled(false); // would look for the corner of the gallery
    window->statusBar()->showMessage(tr("Ready"));
    return window;
}

QWidget *StandardControls::menu()
{
    auto *menu = new QMenu;
    menu->setWindowFlags(Qt::Widget); // stays open as an exhibit
    QAction *chat = menu->addAction(skinIcon(QStringLiteral("chat-16")), tr("&Chat"));
    menu->setDefaultAction(chat);
    QAction *call = menu->addAction(skinIcon(QStringLiteral("phone-16")), tr("C&all"));
    menu->addSeparator();
    QAction *sound = menu->addAction(tr("&Sound"));
    sound->setCheckable(true);
    sound->setChecked(true);
    menu->addAction(tr("&Leave"))->setEnabled(false);
    menu->addMenu(tr("&Move"))->addAction(tr("Friends"));
    menu->addSeparator();
    menu->addAction(skinIcon(QStringLiteral("exit-16")), tr("&Quit"));
    menu->setActiveAction(call);
    pinState(menu);
    return menu;
}

QWidget *StandardControls::toolBox()
{
    auto *box = new QToolBox;
    box->addItem(new QWidget, tr("Chats"));
    auto *info = new QListWidget;
    info->addItems({tr("Emmy"), tr("Online")});
    info->setMinimumSize(20, 20);
    box->addItem(info, skinIcon(QStringLiteral("profile-16")), tr("Info"));
    box->addItem(new QWidget, tr("Files"));
    box->setCurrentIndex(1);
    box->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Ignored); // no higher than need be
    return box;
}

QWidget *StandardControls::tabs()
{
    auto *group = new QGroupBox(tr("Status"));
    group->setCheckable(true);
    auto *online = new QRadioButton(tr("Online"));
    online->setChecked(true);
    auto *choices = new QHBoxLayout(group);
    choices->addWidget(online);
    choices->addWidget(new QRadioButton(tr("Offline")));
    choices->addStretch();

    auto *page = new QWidget;
    auto *column = new QVBoxLayout(page);
    column->setContentsMargins(8, 8, 8, 8);
    column->addWidget(group);
    auto *tabs = new QTabWidget;
    tabs->addTab(page, tr("General"));
    tabs->addTab(new QWidget, tr("Sounds"));
    tabs->addTab(new QWidget, tr("More"));
    return tabs;
}

void addState(QBoxLayout *cards, const QString &title, QWidget *panel)
{
    auto *card = new Card(title);
    card->body()->addWidget(panel, 1);
    cards->addWidget(card, 1);
}

} // namespace

QWidget *createFieldsPanel()
{
    auto *panel = new QWidget;
    QVBoxLayout *column = panelColumn(panel, 8);
    for (QLayout *part : {StandardControls::pushButtons(), StandardControls::toolButtons(),
                          StandardControls::checkButtons(), StandardControls::fields(),
                          StandardControls::sliders(), StandardControls::bars()}) {
        if (column->count() > 0)
            column->addStretch();
        column->addLayout(part);
    }
    return panel;
}

QWidget *createViewsPanel()
{
    auto *panel = new QWidget;
    QVBoxLayout *column = panelColumn(panel, 10);
    QWidget *tree = StandardControls::tree();
    QWidget *table = StandardControls::table();
    QWidget *list = StandardControls::list();
    QWidget *text = StandardControls::text();
    for (QWidget *view : {tree, table, list, text})
        view->setMinimumSize(40, kLowestView);
    QBoxLayout *pair = row();
    pair->addWidget(list);
    pair->addWidget(text);
    column->addWidget(tree, 5);
    column->addWidget(table, 5);
    column->addLayout(pair, 4);
    column->addWidget(StandardControls::calendar());
    return panel;
}

QWidget *createContainersPanel()
{
    auto *panel = new QWidget;
    QVBoxLayout *column = panelColumn(panel, 12);
    QBoxLayout *pair = row();
    pair->addWidget(StandardControls::menu(), 0, Qt::AlignTop);
    pair->addWidget(StandardControls::toolBox(), 1);
    column->addWidget(StandardControls::mainWindow(), 1);
    column->addLayout(pair);
    column->addWidget(StandardControls::tabs());
    return panel;
}

void showInThreeStates(QWidget *page, QWidget *(*create)())
{
    QWidget *disabled = create();
    disabled->setEnabled(false);
    QWidget *mirrored = create();
    mirrored->setLayoutDirection(Qt::RightToLeft);

    QBoxLayout *cards = cardStack(Qt::Horizontal);
    addState(cards, StandardControls::normalTitle(), create());
    addState(cards, StandardControls::disabledTitle(), disabled);
    addState(cards, StandardControls::mirroredTitle(), mirrored);
    cardColumn(page)->addLayout(cards, 1);
}

} // namespace gallery
