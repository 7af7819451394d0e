#include "windows/MainWindow.h"

#include "model/Session.h"
#include "windows/ContactList.h"
#include "windows/FilterPanel.h"
#include "windows/OwnPanel.h"
#include "windows/PlainText.h"
#include "windows/WindowMemory.h"

#include <ombrin/OmStatusBar.h>

#include <QAction>
#include <QtGui/QCloseEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>

namespace messenger {

namespace {

constexpr int kMargin = 8;
constexpr int kGap = 6;
constexpr QSize kFirstSize(300, 600);
constexpr QPoint kFirstOffset(-270, 0);

QString filterKey()
{
    return QStringLiteral("filter");
}

} // namespace

MainWindow::MainWindow(Session *session)
    : m_session(session)
    , m_own(new OwnPanel(session))
    , m_filters(new FilterPanel(
              ContactFilter::fromJson(session->state().value(filterKey()).toObject()),
              session->roster().groups()))
    , m_contacts(new ContactList(session))
    , m_count(new QLabel)
    , m_groups(session->roster().groups())
{
    setWindowTitle(tr("Messenger"));
    createMenus();
    auto *contents = new QWidget;
    auto *column = new QVBoxLayout(contents);
    column->setContentsMargins(kMargin, kGap, kMargin, kGap);
    column->setSpacing(kGap);
    column->addWidget(m_own);
    column->addWidget(m_filters);
    column->addWidget(m_contacts, 1);
    setWidget(contents);
    beginAtEdge(m_count);
    statusBar()->addWidget(m_count, 1);
    statusBar()->setSizeGripEnabled(false);

    connect(m_filters, &FilterPanel::filterChanged, this, [this](const ContactFilter &filter) {
        m_contacts->setFilter(filter);
        m_session->state().setValue(filterKey(), filter.toJson());
    });
    connect(m_filters, &FilterPanel::searched, m_contacts, &ContactList::takeKeys);
    connect(m_contacts, &ContactList::actionId, this, &MainWindow::actionId);
    connect(m_contacts, &ContactList::addContact, this, &MainWindow::contactsWanted);
    connect(m_contacts, &ContactList::shownCountChanged, this, &MainWindow::refreshStatus);
    connectRoster();
    m_contacts->setFilter(m_filters->filter());
    refreshStatus();
    m_contacts->setFocus();
    new WindowMemory(this, QStringLiteral("main"), kFirstSize, kFirstOffset, &session->state());
}

MainWindow::~MainWindow() = default;

void MainWindow::createMenus()
{
    QMenu *messenger = menuBar()->addMenu(tr("&Messenger"));
    messenger->addAction(tr("&Account..."), this, &MainWindow::accountWanted);
    messenger->addAction(tr("Your &picture..."), m_own, &OwnPanel::choosePicture);
    messenger->addAction(tr("P&references..."), this, &MainWindow::preferencesWanted);
    messenger->addSeparator();
    setAlwaysOnTopAction(messenger->addAction(tr("Always on &top")));
    messenger->addSeparator();
    QAction *quit = messenger->addAction(tr("&Quit"), qApp, &QCoreApplication::quit);
    quit->setShortcut(QKeySequence::Quit);

    QMenu *contact = menuBar()->addMenu(tr("&Contact"));
    addContactAction(contact, tr("&Chat"), QStringLiteral("chat"),
                     QKeySequence(QStringLiteral("Ctrl+Return")));
    addContactAction(contact, tr("Ca&ll"), QStringLiteral("voip"));
    addContactAction(contact, tr("Write &e-mail"), QStringLiteral("mail"));
    addContactAction(contact, tr("Send p&icture..."), QStringLiteral("filetransfer"));
    addContactAction(contact, tr("&Web folder"), QStringLiteral("webfolder"));
    addContactAction(contact, tr("&Profile"), QStringLiteral("profile"),
                     QKeySequence(QStringLiteral("Ctrl+I")));
    contact->addSeparator();
    addContactAction(contact, tr("&Block"), QStringLiteral("block"));
    addContactAction(contact, tr("&Unblock"), QStringLiteral("unblock"));
    addContactAction(contact, tr("&Delete..."), QStringLiteral("delete"));
    connect(contact, &QMenu::aboutToShow, this, &MainWindow::refreshContactActions);
    // Shortcuts have no menu to look at.
    connect(contact, &QMenu::aboutToHide, this, [this] {
        for (QAction *action : std::as_const(m_contactActions))
            action->setEnabled(true);
    });
    contact->addSeparator();
    contact->addAction(tr("&Add contacts..."), this, &MainWindow::contactsWanted);
    QAction *search = contact->addAction(tr("&Search"), m_filters, &FilterPanel::focusSearch);
    search->setShortcut(QKeySequence::Find);
    QAction *filters = contact->addAction(tr("&Filters"), m_filters, &FilterPanel::toggle);
    filters->setShortcut(QKeySequence(QStringLiteral("Ctrl+Shift+F")));

    QMenu *help = menuBar()->addMenu(tr("&Help"));
    help->addAction(tr("&About..."), this, &MainWindow::aboutWanted);
}

void MainWindow::addContactAction(QMenu *menu, const QString &text, const QString &id,
                                  const QKeySequence &key)
{
    QAction *action = menu->addAction(text);
    action->setShortcut(key);
    action->setData(id);
    m_contactActions.append(action);
    connect(action, &QAction::triggered, this, [this, id] {
        const QString contactId = m_contacts->currentContactId();
        if (!contactId.isEmpty())
            Q_EMIT actionId(id, contactId);
    });
}

void MainWindow::refreshContactActions()
{
    const Contact contact = m_session->roster().contact(m_contacts->currentContactId());
    for (QAction *action : std::as_const(m_contactActions)) {
        const QString id = action->data().toString();
        bool isPossible = !contact.id.isEmpty();
        if (id == QLatin1String("block") || id == QLatin1String("filetransfer"))
            isPossible = isPossible && !contact.isBlocked;
        else if (id == QLatin1String("unblock"))
            isPossible = isPossible && contact.isBlocked;
        else if (id == QLatin1String("webfolder"))
            isPossible = contact.web.isValid();
        else if (id == QLatin1String("mail"))
            isPossible = hasMail(contact);
        action->setEnabled(isPossible);
    }
}

void MainWindow::connectRoster()
{
    const Roster *roster = &m_session->roster();
    connect(roster, &Roster::added, this, &MainWindow::refreshGroups);
    connect(roster, &Roster::removedContact, this, &MainWindow::refreshGroups);
}

void MainWindow::refreshGroups()
{
    const QStringList groups = m_session->roster().groups();
    if (m_groups == groups)
        return;
    m_groups = groups;
    m_filters->setGroups(groups);
}

void MainWindow::refreshStatus()
{
    m_count->setText(tr("%1 of %2 contacts")
                             .arg(m_contacts->shownCount())
                             .arg(m_session->roster().contacts().size()));
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    if (QWidget *edit = focusWidget())
        edit->clearFocus(); // what was written there counts
    OmWindow::closeEvent(event);
    // Without the contacts there is no way back to what else is open.
    if (event->isAccepted())
        QCoreApplication::quit();
}

} // namespace messenger
