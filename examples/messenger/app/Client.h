#pragma once

#include "model/Preferences.h"

#include <QtCore/QHash>
#include <QtCore/QObject>
#include <QtCore/QPointer>

#include <memory>

namespace messenger {

class AccountMission;
class ChatWindow;
class MainWindow;
class ProfileWindow;
class Session;
class Toast;
struct Account;
struct Message;

/// Opens the windows of a session and does what the user asks for in them.
class Client : public QObject
{
    Q_OBJECT

public:
    /// \a session must outlive the client.
    explicit Client(Session *session, QObject *parent = nullptr);
    ~Client() override;

    /// Opens the contacts; before that, where there is no account yet, the wizard. False if the
    /// user does not want an account.
    bool start();

    MainWindow *mainWindow() const { return m_mainWindow.get(); }
    /// The window of the conversation with \a contactId, which is opened if need be.
    ChatWindow *openChat(const QString &contactId);
    ProfileWindow *openProfile(const QString &contactId);

    /// Does what a contact card, or one of our windows, names \a actionId for \a contactId.
    void perform(const QString &actionId, const QString &contactId);

private:
    bool runAccountWizard();
    void takeAccount(const Account &old, const AccountMission &mission);
    void createMainWindow();
    void call(const QString &contactId);
    void setBlocked(const QString &contactId, bool isBlocked);
    void deleteContact(const QString &contactId);
    void addContacts();
    void editPreferences();
    void showAbout();
    void sendPicture(const QString &contactId);
    static void openLink(const QString &link);
    void tellOfMessage(const QString &contactId, const Message &message);
    void tellOfPeer(const QString &contactId);
    void showToast(const QString &contactId, const QString &text);
    QWidget *parentWindow() const;

    Session *m_session;
    Preferences m_preferences;
    std::unique_ptr<MainWindow> m_mainWindow;
    QHash<QString, QPointer<ChatWindow>> m_chats;
    QHash<QString, QPointer<ProfileWindow>> m_profiles;
    QPointer<Toast> m_toast;
};

} // namespace messenger
