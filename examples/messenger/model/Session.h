#pragma once

#include "model/Account.h"
#include "model/Message.h"
#include "model/ProfileFolder.h"
#include "model/Roster.h"
#include "model/StateFile.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QHash>
#include <QtCore/QObject>
#include <QtGui/QImage>

#include <memory>

namespace messenger {

class ContactBook;
class PeerNetwork;
class ScriptedContact;
struct PeerMessage;

/// The messenger without its windows: who the user is, the contacts, and what is said to and by
/// them. Everything is stored before it is reported; what cannot be, on a full disk for example, is
/// reported all the same, with a remark that says so.
class Session : public QObject
{
    Q_OBJECT

public:
    /// \a folder must outlive the session.
    Session(const ProfileFolder &folder, const ContactBook &book, QObject *parent = nullptr);
    ~Session() override;

    /// Meets other running copies through the folder \a registryPath, once there is an account.
    void goOnline(const QString &registryPath);

    StateFile &state() { return m_state; }
    Roster &roster() { return *m_roster; }

    const Account &account() const { return m_account; }
    void setAccount(const Account &account);
    /// Null if the user has none.
    QImage ownPicture() const;
    /// Null for none. False if \a picture cannot be stored; the picture then stays as it was.
    bool setOwnPicture(const QImage &picture);

    /// The file of the picture \a name that a message or an account names.
    QString pictureFile(const QString &name) const;
    QVector<Message> messages(const QString &contactId, int count) const;
    /// What the user has begun to write to a contact and not sent yet.
    QString draft(const QString &contactId) const;

    /// \name What the user does
    /// \{
    /// In several messages if it is too long for one.
    void sendText(const QString &contactId, const QString &text);
    void sendPicture(const QString &contactId, const QImage &picture);
    void sendNudge(const QString &contactId);
    void setTyping(const QString &contactId, bool isTyping);
    void setDraft(const QString &contactId, const QString &text);
    /// Adds a remark of the messenger itself to a conversation.
    void remark(const QString &contactId, const QString &text);
    void markRead(const QString &contactId);
    /// \}

    /// The script behind contacts that answer, or null if there are none.
    ScriptedContact *script() const { return m_script; }

Q_SIGNALS:
    void accountChanged();
    void messageAdded(const QString &contactId, const messenger::Message &message);
    void typingChanged(const QString &contactId, bool isTyping);
    void nudged(const QString &contactId);
    void peerCame(const QString &contactId);

private:
    void connectScript();
    void connectPeers();
    void introduce();
    void sendMessage(const QString &contactId, const QString &text);
    void add(const QString &contactId, Message::From from, Message::Kind kind, const QString &text);
    void receive(const QString &contactId, Message::Kind kind, const QString &text);
    void receiveNudge(const QString &contactId);
    void explainSilence(const QString &contactId);
    void onPeerPresence(const QString &peerId, const PeerMessage &peer);
    void onPeerLeft(const QString &peerId);
    void welcomeBack(const QString &peerId);
    void onPeerMessage(const QString &peerId, const PeerMessage &message);
    void onPeerPortrait(const QString &contactId, const QByteArray &data);
    bool isAnsweredByScript(const QString &contactId) const;

    const ProfileFolder &m_folder;
    StateFile m_state;
    // In a file of its own, as it is written while the user types. By the id of the contact.
    StateFile m_drafts;
    Account m_account;
    std::unique_ptr<Roster> m_roster;
    std::unique_ptr<PeerNetwork> m_network;
    ScriptedContact *m_script = nullptr;
    QString m_scriptedId;
    QString m_registryPath;
    QHash<QString, QElapsedTimer> m_lastNudges;
};

} // namespace messenger
