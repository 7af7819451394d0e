#include "app/Client.h"

#include "model/ScriptedContact.h"
#include "model/Session.h"
#include "windows/ChatWindow.h"
#include "windows/ContactList.h"
#include "windows/MainWindow.h"
#include "windows/Pictures.h"
#include "windows/PlainText.h"
#include "windows/PreferencesDialog.h"
#include "windows/ProfileWindow.h"
#include "windows/Toast.h"
#include "windows/WindowMemory.h"
#include "wizard/AccountMission.h"

#include <ombrin/COmWizard_Standard.h>
#include <ombrin/OmBalloonTip.h>
#include <ombrin/OmContactCard.h>
#include <ombrin/OmDesktop.h>
#include <ombrin/OmInputDialog.h>
#include <ombrin/OmMessageBox.h>

#include <QtCore/QJsonObject>
#include <QtGui/QDesktopServices>
#include <QtWidgets/QApplication>

namespace messenger {

namespace {

using ombrin::OmMessageBox;

constexpr QSize kChatSize(520, 480);
constexpr QSize kProfileSize(400, 400);
constexpr QSize kWizardSize(500, 400);
constexpr int kBalloonMs = 6000;
constexpr int kLongestNote = 60;
// From the middle of the screen, so that contacts and conversations stand side by side.
constexpr QPoint kChatOffset(160, 0);
constexpr QPoint kProfileOffset(120, 60);

QString preferencesKey()
{
    return QStringLiteral("preferences");
}

QString noteOf(const Message &message)
{
    switch (message.kind) {
    case Message::Kind::Picture:
        return Client::tr("has sent you a picture.");
    case Message::Kind::Nudge:
        return Client::tr("has nudged you.");
    case Message::Kind::Html:
        return Client::tr("has sent you a formatted message.");
    case Message::Kind::Text:
        break;
    }
    const QString note = asLine(message.text, kLongestNote + 1);
    return note.size() <= kLongestNote ? note : note.left(kLongestNote) + QChar(0x2026);
}

void bringForward(QWidget *window)
{
    window->show();
    window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
    ombrin::OmDesktop::setForeground(window);
    window->activateWindow();
}

} // namespace

Client::Client(Session *session, QObject *parent)
    : QObject(parent)
    , m_session(session)
    , m_preferences(Preferences::fromJson(session->state().value(preferencesKey()).toObject()))
{
    connect(session, &Session::messageAdded, this, &Client::tellOfMessage);
    connect(session, &Session::peerCame, this, &Client::tellOfPeer);
    connect(session, &Session::nudged, this, [this](const QString &contactId) {
        // A nudge is to be noticed.
        if (!m_chats.value(contactId))
            openChat(contactId);
    });
}

Client::~Client()
{
    for (const QPointer<ChatWindow> &chat : std::as_const(m_chats))
        delete chat;
    for (const QPointer<ProfileWindow> &profile : std::as_const(m_profiles))
        delete profile;
    delete m_toast;
    ombrin::OmBalloonTip::hideBalloon();
}

bool Client::start()
{
    if (!m_session->account().exists() && !runAccountWizard())
        return false;
    createMainWindow();
    m_mainWindow->show();
    return true;
}

void Client::createMainWindow()
{
    m_mainWindow = std::make_unique<MainWindow>(m_session);
    connect(m_mainWindow.get(), &MainWindow::actionId, this, &Client::perform);
    connect(m_mainWindow.get(), &MainWindow::accountWanted, this, &Client::runAccountWizard);
    connect(m_mainWindow.get(), &MainWindow::contactsWanted, this, &Client::addContacts);
    connect(m_mainWindow.get(), &MainWindow::preferencesWanted, this, &Client::editPreferences);
    connect(m_mainWindow.get(), &MainWindow::aboutWanted, this, &Client::showAbout);
}

QWidget *Client::parentWindow() const
{
    QWidget *active = QApplication::activeWindow();
    return active ? active : m_mainWindow.get();
}

// The account

bool Client::runAccountWizard()
{
    const Account old = m_session->account();
    AccountMission mission;
    if (old.exists()) {
        mission.setServer(old.server);
        mission.setName(old.name);
        mission.setPicture(m_session->ownPicture());
    }
    connect(&mission, &AccountMission::finished, this,
            [this, &mission, old] { takeAccount(old, mission); });
    COmWizard_Standard wizard;
    wizard.Set_Mission(&mission);
    wizard.FixSize(true, kWizardSize);
    wizard.setWindowModality(Qt::ApplicationModal); // it belongs to no window that it could block
    wizard.exec();
    return mission.isDone();
}

void Client::takeAccount(const Account &old, const AccountMission &mission)
{
    Account account = Account::create(mission.name(), mission.server());
    if (old.exists()) {
        account.id = old.id;
        account.status = old.status;
        account.remark = old.remark;
        account.picture = old.picture;
    }
    m_session->setAccount(account);
    const bool isPictureKept = m_session->setOwnPicture(mission.picture());
    if (!old.exists() && m_session->script())
        m_session->script()->greet(account.name);
    if (!isPictureKept)
        OmMessageBox::information(parentWindow(), tr("Your Picture"),
                                  tr("The picture cannot be stored. Is the disk full?\n"
                                     "Your picture stays as it was."));
}

// What contact cards and windows ask for

void Client::perform(const QString &actionId, const QString &contactId)
{
    const QLatin1String opening("open:");
    // Balloons and windows may outlive a contact.
    if (!m_session->roster().contains(contactId))
        return;
    if (actionId.startsWith(opening))
        openLink(actionId.mid(opening.size()));
    else if (actionId == QLatin1String("chat"))
        openChat(contactId);
    else if (actionId == QLatin1String("profile"))
        openProfile(contactId);
    else if (actionId == QLatin1String("filetransfer"))
        sendPicture(contactId);
    else if (actionId == QLatin1String("mail"))
        openLink(QStringLiteral("mailto:") + m_session->roster().contact(contactId).email);
    else if (actionId == QLatin1String("webfolder"))
        openLink(m_session->roster().contact(contactId).web.toString());
    else if (actionId == QLatin1String("voip"))
        call(contactId);
    else if (actionId == QLatin1String("block"))
        setBlocked(contactId, true);
    else if (actionId == QLatin1String("unblock"))
        setBlocked(contactId, false);
    else if (actionId == QLatin1String("delete") || actionId == QLatin1String("exit"))
        deleteContact(contactId);
    else
        OmMessageBox::information(parentWindow(), tr("Messenger"),
                                  tr("This example cannot do that."));
}

ChatWindow *Client::openChat(const QString &contactId)
{
    QPointer<ChatWindow> &chat = m_chats[contactId];
    if (!chat) {
        chat = new ChatWindow(m_session, contactId, m_preferences);
        new WindowMemory(chat, QStringLiteral("chat-") + contactId, kChatSize, kChatOffset,
                         &m_session->state());
        connect(chat, &ChatWindow::actionId, this, &Client::perform);
    }
    // What it said is to be read in the window.
    ombrin::OmBalloonTip::hideBalloon();
    bringForward(chat);
    return chat;
}

ProfileWindow *Client::openProfile(const QString &contactId)
{
    QPointer<ProfileWindow> &profile = m_profiles[contactId];
    if (!profile) {
        profile = new ProfileWindow(m_session, contactId);
        new WindowMemory(profile, QStringLiteral("profile"), kProfileSize, kProfileOffset,
                         &m_session->state());
        connect(profile, &ProfileWindow::actionId, this, &Client::perform);
    }
    bringForward(profile);
    return profile;
}

void Client::sendPicture(const QString &contactId)
{
    ChatWindow *chat = openChat(contactId);
    if (!m_session->roster().contact(contactId).isBlocked)
        chat->choosePicture();
}

// Only what a browser or a mail program opens: links come from other people.
void Client::openLink(const QString &link)
{
    const QUrl url(link);
    const QString scheme = url.scheme();
    for (const char *allowed : {"https", "http", "mailto"}) {
        if (scheme == QLatin1String(allowed))
            QDesktopServices::openUrl(url);
    }
}

void Client::call(const QString &contactId)
{
    const Contact contact = m_session->roster().contact(contactId);
    const QString number = contact.phone.isEmpty() ? tr("no number is known") : contact.phone;
    OmMessageBox::information(
            parentWindow(), tr("Call"),
            asRichText(tr("This example cannot make calls.\n%1: %2").arg(contact.alias, number)));
}

void Client::setBlocked(const QString &contactId, bool isBlocked)
{
    m_session->roster().setBlocked(contactId, isBlocked);
    const QString alias = m_session->roster().contact(contactId).alias;
    m_session->remark(contactId, isBlocked ? tr("You have blocked %1.").arg(alias)
                                           : tr("You have unblocked %1.").arg(alias));
}

void Client::deleteContact(const QString &contactId)
{
    const QPointer<Client> guard(this);
    const QString alias = m_session->roster().contact(contactId).alias;
    const int answer =
            OmMessageBox::question(parentWindow(), tr("Delete Contact"),
                                   asRichText(tr("Delete %1 from your contacts?\nWhat you have "
                                                 "written to each other is kept.")
                                                      .arg(alias)));
    if (!guard || answer != QDialog::Accepted)
        return;
    delete m_chats.take(contactId);
    delete m_profiles.take(contactId);
    m_session->roster().remove(contactId);
}

void Client::addContacts()
{
    const QVector<Contact> removed = m_session->roster().removed();
    if (removed.isEmpty()) {
        OmMessageBox::information(m_mainWindow.get(), tr("Add Contacts"),
                                  tr("All contacts of the contact book are in your list.\n"
                                     "To have another one, start this program a second time."));
        return;
    }
    QStringList names;
    for (const Contact &contact : removed)
        names.append(contact.alias);
    const QPointer<Client> guard(this);
    bool ok = false;
    const QString name = ombrin::OmInputDialog::getItem(m_mainWindow.get(), tr("Add Contacts"),
                                                        tr("Contacts that you have deleted:"),
                                                        names, 0, false, &ok);
    const int index = static_cast<int>(names.indexOf(name));
    if (guard && ok && index >= 0)
        m_session->roster().restore(removed.at(index).id);
}

void Client::editPreferences()
{
    const QPointer<Client> guard(this);
    // Not on the stack: it goes with its window.
    const QPointer<PreferencesDialog> dialog =
            new PreferencesDialog(m_preferences, m_mainWindow.get());
    const bool isAccepted = dialog->exec() == QDialog::Accepted && dialog;
    const Preferences chosen = isAccepted ? dialog->preferences() : Preferences();
    delete dialog;
    if (!isAccepted || !guard)
        return;
    m_preferences = chosen;
    m_session->state().setValue(preferencesKey(), m_preferences.toJson());
    for (const QPointer<ChatWindow> &chat : std::as_const(m_chats)) {
        if (chat)
            chat->setPreferences(m_preferences);
    }
}

void Client::showAbout()
{
    OmMessageBox::information(
            m_mainWindow.get(), tr("About Messenger"),
            tr("A small messenger, built with ombrin gui.\nIts source is there to be read: "
               "examples/messenger."));
}

// What is new

void Client::tellOfMessage(const QString &contactId, const Message &message)
{
    const ChatWindow *chat = m_chats.value(contactId);
    const bool isSeen = chat && chat->isActiveWindow();
    if (message.from != Message::From::Contact || isSeen || !m_preferences.showsBalloons
        || !m_mainWindow)
        return;
    const ombrin::OmContactCard *card = m_mainWindow->contacts()->cardOf(contactId);
    const bool isCardSeen = card && m_mainWindow->isVisible() && !m_mainWindow->isMinimized()
                            && !card->visibleRegion().isEmpty();
    if (!isCardSeen) {
        showToast(contactId, noteOf(message));
        return;
    }
    const QPoint tip = card->mapToGlobal(QPoint(card->width() / 2, card->height() / 2));
    ombrin::OmBalloonTip::showBalloon(ombrin::InformationMessageIcon,
                                      m_session->roster().contact(contactId).alias, noteOf(message),
                                      tip, kBalloonMs, true, true, true);
}

void Client::tellOfPeer(const QString &contactId)
{
    if (m_mainWindow && m_preferences.showsBalloons)
        showToast(contactId, tr("is here now."));
}

void Client::showToast(const QString &contactId, const QString &text)
{
    const Contact contact = m_session->roster().contact(contactId);
    // One at a time; the newest is what counts.
    delete m_toast;
    m_toast = new Toast(roundPortrait(portraitOf(contact), 40), contact.alias, text);
    connect(m_toast, &Toast::clicked, this,
            [this, contactId] { perform(QStringLiteral("chat"), contactId); });
    m_toast->popUp();
}

} // namespace messenger
