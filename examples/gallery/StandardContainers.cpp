#include "StandardControls.h"

#include "PageKit.h"

#include <QAction>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QDockWidget>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QStatusBar>
#include <QtWidgets/QTabWidget>
#include <QtWidgets/QTextEdit>
#include <QtWidgets/QToolBar>
#include <QtWidgets/QToolBox>

namespace gallery {

namespace {

/// What holds other controls.
class StandardContainers
{
    Q_DECLARE_TR_FUNCTIONS(StandardContainers)

public:
    static QWidget *mainWindow();
    static QWidget *menu();
    static QWidget *toolBox();
    static QWidget *tabs();
};

QWidget *StandardContainers::mainWindow()
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

QWidget *StandardContainers::menu()
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

QWidget *StandardContainers::toolBox()
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

QWidget *StandardContainers::tabs()
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

} // namespace

QWidget *createContainersPanel()
{
    auto *panel = new QWidget;
    QVBoxLayout *column = panelColumn(panel, 12);
    QBoxLayout *pair = controlRow();
    pair->addWidget(StandardContainers::menu(), 0, Qt::AlignTop);
    pair->addWidget(StandardContainers::toolBox(), 1);
    column->addWidget(StandardContainers::mainWindow(), 1);
    column->addLayout(pair);
    column->addWidget(StandardContainers::tabs());
    return panel;
}

} // namespace gallery
