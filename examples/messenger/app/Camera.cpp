#include "app/Camera.h"

#include "app/Client.h"
#include "app/SampleDay.h"
#include "common/WindowCamera.h"
#include "model/Session.h"
#include "windows/ChatWindow.h"
#include "windows/ContactList.h"
#include "windows/FilterPanel.h"
#include "windows/MainWindow.h"
#include "windows/MessageInput.h"
#include "windows/Pictures.h"
#include "windows/PreferencesDialog.h"
#include "windows/ProfileWindow.h"
#include "windows/Toast.h"
#include "wizard/AccountMission.h"

#include <ombrin/COmWizard_Standard.h>
#include <ombrin/OmContactCard.h>

#include <QtCore/QTemporaryDir>
#include <QtGui/QCursor>

namespace messenger {

namespace {

constexpr QSize kContactsSize(300, 600);
constexpr QSize kChatSize(560, 600);
constexpr QSize kProfileSize(420, 400);
constexpr QSize kWizardSize(500, 400);
constexpr QPoint kWindowPosition(20, 20);

// Word by word, as only what is being typed is checked.
void type(QTextEdit *edit, const QString &text)
{
    for (const QChar c : text)
        edit->insertPlainText(QString(c));
}

} // namespace

Camera::Camera(const QString &directory, const ContactBook &book)
    : m_directory(directory)
    , m_book(book)
{}

QString Camera::takeAll()
{
    QCursor::setPos(0, 0); // outside the windows: nothing is hovered
    const QTemporaryDir temporary;
    ProfileFolder folder(temporary.path());
    Session session(folder, m_book);
    livePartOfDay(&session, folder);
    Client client(&session);
    client.start();

    takeContacts(&client);
    takeChat(&client, &session);
    takeProfile(&client);
    takeWizard(session.ownPicture());
    takePreferences();
    takeToast();
    return m_error;
}

void Camera::takeContacts(Client *client)
{
    MainWindow *window = client->mainWindow();
    window->move(kWindowPosition);
    window->resize(kContactsSize);
    window->contacts()->cardOf(QStringLiteral("bela"))->setTyping(true);
    take(window, QStringLiteral("contacts"));
    window->filters()->setUnfolded(true);
    take(window, QStringLiteral("filters"));
    window->filters()->setUnfolded(false);
}

void Camera::takeChat(Client *client, Session *session)
{
    ChatWindow *chat = client->openChat(QStringLiteral("anna"));
    chat->move(kWindowPosition);
    chat->resize(kChatSize);
    type(chat->input(), tr("I have recieved it, thank you! "));
    Q_EMIT session->typingChanged(QStringLiteral("anna"), true);
    take(chat, QStringLiteral("chat"));
    chat->close();
}

void Camera::takeProfile(Client *client)
{
    ProfileWindow *profile = client->openProfile(QStringLiteral("hana"));
    profile->move(kWindowPosition);
    profile->resize(kProfileSize);
    take(profile, QStringLiteral("profile"));
    profile->close();
}

void Camera::takeWizard(const QImage &picture)
{
    AccountMission mission;
    mission.setName(sampleName());
    mission.setPicture(picture);
    COmWizard_Standard wizard;
    wizard.Set_Mission(&mission);
    wizard.FixSize(true, kWizardSize);
    take(&wizard, QStringLiteral("wizard-server"));
    mission.goTo(AccountMission::PictureStep);
    take(&wizard, QStringLiteral("wizard-picture"));
    mission.goTo(AccountMission::SummaryStep);
    take(&wizard, QStringLiteral("wizard-summary"));
}

void Camera::takePreferences()
{
    PreferencesDialog dialog((Preferences()));
    dialog.setWindowModality(Qt::NonModal);
    take(&dialog, QStringLiteral("preferences"));
}

void Camera::takeToast()
{
    Contact contact;
    for (const Contact &candidate : m_book.contacts()) {
        if (candidate.id == QLatin1String("kofi"))
            contact = candidate;
    }
    Toast toast(roundPortrait(portraitOf(contact), 40), contact.alias,
                tr("Shall we meet at the station?"));
    toast.setAttribute(Qt::WA_DeleteOnClose, false);
    toast.show();
    example::settle();
    const QString failed =
            example::photograph(&toast, m_directory, QStringLiteral("messenger-toast"));
    if (!failed.isEmpty())
        m_error = tr("The picture '%1' cannot be saved.").arg(failed);
}

void Camera::take(QWidget *window, const QString &name)
{
    if (!m_error.isEmpty())
        return;
    if (!example::activate(window, window, true)) {
        m_error = tr("The window does not become active.");
        return;
    }
    const QString failed =
            example::photograph(window, m_directory, QStringLiteral("messenger-") + name);
    if (!failed.isEmpty())
        m_error = tr("The picture '%1' cannot be saved.").arg(failed);
}

} // namespace messenger
