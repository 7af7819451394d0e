#include "model/Session.h"

#include "model/ContactBook.h"
#include "model/History.h"
#include "model/PictureFiles.h"
#include "model/SceneryPicture.h"
#include "model/ScriptedContact.h"
#include "peers/PeerNetwork.h"

#include <QtCore/QDir>

#include <algorithm>

namespace messenger {

namespace {

namespace Om = ombrin::Om;

constexpr int kPortraitExtent = 320;
constexpr int kLargestPortrait = 400 << 10;
constexpr int kNudgePauseMs = 4000;

const QLatin1String kAccountKey("account");

/// How much of \a text from \a start on goes into one message: never half a character.
int messageLength(const QString &text, int start)
{
    const int length = std::min(kLongestText, static_cast<int>(text.size()) - start);
    const bool isCut = start + length < text.size();
    return isCut && text.at(start + length - 1).isHighSurrogate() ? length - 1 : length;
}

// Who is invisible is offline to everybody.
Om::ContactStatus shownStatus(Om::ContactStatus status)
{
    return status == Om::Invisible || status == Om::InvisibleForEveryone ? Om::Offline : status;
}

} // namespace

Session::Session(const ProfileFolder &folder, const ContactBook &book, QObject *parent)
    : QObject(parent)
    , m_folder(folder)
    , m_state(folder.stateFile())
    , m_drafts(folder.draftsFile())
    , m_account(Account::fromJson(m_state.value(kAccountKey).toObject()))
    , m_roster(std::make_unique<Roster>(book.contacts(), &m_state))
{
    for (const Contact &contact : book.contacts()) {
        if (contact.answers && m_scriptedId.isEmpty())
            m_scriptedId = contact.id;
    }
    connectScript();
}

Session::~Session() = default;

void Session::connectScript()
{
    if (m_scriptedId.isEmpty())
        return;
    m_script = new ScriptedContact(this);
    connect(m_script, &ScriptedContact::typing, this, [this](bool isTyping) {
        if (!m_roster->contact(m_scriptedId).isBlocked)
            Q_EMIT typingChanged(m_scriptedId, isTyping);
    });
    connect(m_script, &ScriptedContact::saysText, this,
            [this](const QString &text) { receive(m_scriptedId, Message::Kind::Text, text); });
    connect(m_script, &ScriptedContact::saysHtml, this,
            [this](const QString &html) { receive(m_scriptedId, Message::Kind::Html, html); });
    connect(m_script, &ScriptedContact::showsPicture, this, [this] {
        const QByteArray data = pictureToData(sceneryPicture());
        receive(m_scriptedId, Message::Kind::Picture, keepPicture(m_folder.pictureFolder(), data));
    });
    connect(m_script, &ScriptedContact::nudges, this, [this] { receiveNudge(m_scriptedId); });
    connect(m_script, &ScriptedContact::changesStatus, this,
            [this](Om::ContactStatus status) { m_roster->setStatus(m_scriptedId, status); });
}

void Session::goOnline(const QString &registryPath)
{
    m_registryPath = registryPath;
    introduce();
}

void Session::introduce()
{
    if (m_registryPath.isEmpty() || !m_account.exists())
        return;
    if (!m_network) {
        m_network = std::make_unique<PeerNetwork>(m_registryPath);
        connectPeers();
        m_network->setPortrait(pictureToData(ownPicture(), kLargestPortrait));
    }
    PeerMessage hello;
    hello.id = m_account.id;
    hello.name = m_account.name;
    hello.status = shownStatus(m_account.status);
    hello.remark = m_account.remark;
    m_network->setSelf(hello);
}

// The user

void Session::setAccount(const Account &account)
{
    m_account = account;
    m_state.setValue(kAccountKey, account.toJson());
    introduce();
    Q_EMIT accountChanged();
}

QImage Session::ownPicture() const
{
    return m_account.picture.isEmpty() ? QImage() : readPicture(pictureFile(m_account.picture));
}

bool Session::setOwnPicture(const QImage &picture)
{
    const QByteArray data = pictureToData(portraitFrom(picture, kPortraitExtent), kLargestPortrait);
    const QString name = keepPicture(m_folder.pictureFolder(), data);
    if (name.isEmpty() && !picture.isNull())
        return false;
    Account account = m_account;
    account.picture = name;
    setAccount(account);
    if (m_network)
        m_network->setPortrait(data);
    return true;
}

QString Session::pictureFile(const QString &name) const
{
    // Names are those that keepPicture() gives; nothing else is looked for.
    const bool isPlain = !name.contains(QLatin1Char('/')) && !name.contains(QLatin1Char('\\'))
                         && !name.contains(QLatin1Char(':'));
    return isPlain && !name.isEmpty() ? QDir(m_folder.pictureFolder()).filePath(name) : QString();
}

// Conversations

QVector<Message> Session::messages(const QString &contactId, int count) const
{
    return isContactId(contactId) ? History(m_folder.historyFile(contactId)).newest(count)
                                  : QVector<Message>();
}

void Session::add(const QString &contactId, Message::From from, Message::Kind kind,
                  const QString &text)
{
    if (!isContactId(contactId))
        return;
    const Message message = {QDateTime::currentDateTime(), from, kind, text};
    const bool isStored = History(m_folder.historyFile(contactId)).append(message);
    Q_EMIT messageAdded(contactId, message);
    if (!isStored)
        Q_EMIT messageAdded(contactId, {message.time, Message::From::Messenger, Message::Kind::Text,
                                        tr("This could not be stored. Is the disk full?")});
}

void Session::remark(const QString &contactId, const QString &text)
{
    add(contactId, Message::From::Messenger, Message::Kind::Text, text);
}

void Session::markRead(const QString &contactId)
{
    m_roster->setUnread(contactId, 0);
}

bool Session::isAnsweredByScript(const QString &contactId) const
{
    return m_script && contactId == m_scriptedId && !m_roster->contact(contactId).isBlocked;
}

void Session::sendText(const QString &contactId, const QString &text)
{
    if (text.trimmed().isEmpty())
        return;
    for (int start = 0; start < text.size();) {
        const int length = messageLength(text, start);
        sendMessage(contactId, text.mid(start, length));
        start += length;
    }
}

void Session::sendMessage(const QString &contactId, const QString &text)
{
    add(contactId, Message::From::Me, Message::Kind::Text, text);
    if (isAnsweredByScript(contactId))
        m_script->hear(text);
    else if (!m_network || !m_network->sendText(peerIdOfContact(contactId), text))
        explainSilence(contactId);
}

void Session::sendPicture(const QString &contactId, const QImage &picture)
{
    const QByteArray data = pictureToData(picture);
    const QString name = keepPicture(m_folder.pictureFolder(), data);
    if (name.isEmpty()) {
        remark(contactId, tr("The picture cannot be sent."));
        return;
    }
    add(contactId, Message::From::Me, Message::Kind::Picture, name);
    if (isAnsweredByScript(contactId))
        m_script->seePicture();
    else if (!m_network || !m_network->sendPicture(peerIdOfContact(contactId), data))
        explainSilence(contactId);
}

void Session::sendNudge(const QString &contactId)
{
    add(contactId, Message::From::Me, Message::Kind::Nudge, QString());
    if (isAnsweredByScript(contactId))
        m_script->feelNudge();
    else if (!m_network || !m_network->sendNudge(peerIdOfContact(contactId)))
        explainSilence(contactId);
}

void Session::setTyping(const QString &contactId, bool isTyping)
{
    if (m_network)
        m_network->sendTyping(peerIdOfContact(contactId), isTyping);
}

QString Session::draft(const QString &contactId) const
{
    return m_drafts.value(contactId).toString();
}

void Session::setDraft(const QString &contactId, const QString &text)
{
    m_drafts.setValue(contactId, text.isEmpty() ? QJsonValue(QJsonValue::Undefined) : text);
}

// A message that nobody gets must not look as if somebody had it.
void Session::explainSilence(const QString &contactId)
{
    const Contact contact = m_roster->contact(contactId);
    if (contact.isPeer) {
        remark(contactId,
               tr("%1 is not connected. This has not been delivered.").arg(contact.alias));
    } else if (messages(contactId, 2).size() < 2) {
        // Said once, at the beginning.
        remark(contactId,
               tr("%1 is an example of the contact book and cannot answer. The guide can, and so "
                  "can a second copy of this program.")
                       .arg(contact.alias));
    }
}

void Session::receive(const QString &contactId, Message::Kind kind, const QString &text)
{
    const Contact contact = m_roster->contact(contactId);
    if (contact.isBlocked || contact.id.isEmpty())
        return;
    if (text.isEmpty()) {
        remark(contactId, tr("%1 has sent a picture that cannot be stored.").arg(contact.alias));
        return;
    }
    Q_EMIT typingChanged(contactId, false);
    m_roster->setUnread(contactId, m_roster->unread(contactId) + 1);
    add(contactId, Message::From::Contact, kind, text);
}

void Session::receiveNudge(const QString &contactId)
{
    QElapsedTimer &last = m_lastNudges[contactId];
    const bool isTooSoon = last.isValid() && !last.hasExpired(kNudgePauseMs);
    if (isTooSoon || m_roster->contact(contactId).isBlocked || !m_roster->contains(contactId))
        return;
    last.start();
    add(contactId, Message::From::Contact, Message::Kind::Nudge, QString());
    Q_EMIT nudged(contactId);
}

// Peers

void Session::connectPeers()
{
    connect(m_network.get(), &PeerNetwork::presenceChanged, this, &Session::onPeerPresence);
    connect(m_network.get(), &PeerNetwork::left, this, &Session::onPeerLeft);
    connect(m_network.get(), &PeerNetwork::received, this, &Session::onPeerMessage);
}

void Session::onPeerPresence(const QString &peerId, const PeerMessage &peer)
{
    Contact contact = m_roster->contact(contactIdOfPeer(peerId));
    const bool hasCome = contact.status == Om::Offline && peer.status != Om::Offline;
    contact.id = contactIdOfPeer(peerId);
    contact.alias = peer.name;
    contact.status = peer.status;
    contact.statusText = peer.remark;
    m_roster->putPeer(contact);
    const Contact known = m_roster->contact(contact.id);
    if (hasCome && !known.id.isEmpty() && !known.isBlocked)
        Q_EMIT peerCame(contact.id);
}

void Session::onPeerLeft(const QString &peerId)
{
    Q_EMIT typingChanged(contactIdOfPeer(peerId), false);
    m_roster->setStatus(contactIdOfPeer(peerId), Om::Offline);
}

// Who was deleted and has something to say is a contact again: whoever wrote it was told that it
// has arrived.
void Session::welcomeBack(const QString &peerId)
{
    const PeerMessage peer = m_network->peer(peerId);
    if (!peer.id.isEmpty() && !m_roster->contains(contactIdOfPeer(peerId)))
        onPeerPresence(peerId, peer);
}

void Session::onPeerMessage(const QString &peerId, const PeerMessage &message)
{
    const QString contactId = contactIdOfPeer(peerId);
    const bool isForReading = message.type == PeerMessage::Type::Text
                              || message.type == PeerMessage::Type::Picture
                              || message.type == PeerMessage::Type::Nudge;
    if (isForReading)
        welcomeBack(peerId);
    switch (message.type) {
    case PeerMessage::Type::Text:
        receive(contactId, Message::Kind::Text, message.text);
        break;
    case PeerMessage::Type::Picture:
        if (!m_roster->contact(contactId).isBlocked && !pictureFromData(message.data).isNull())
            receive(contactId, Message::Kind::Picture,
                    keepPicture(m_folder.pictureFolder(), message.data));
        break;
    case PeerMessage::Type::Portrait:
        onPeerPortrait(contactId, message.data);
        break;
    case PeerMessage::Type::Typing:
        if (!m_roster->contact(contactId).isBlocked)
            Q_EMIT typingChanged(contactId, message.isOn);
        break;
    case PeerMessage::Type::Nudge:
        receiveNudge(contactId);
        break;
    case PeerMessage::Type::Hello:
    case PeerMessage::Type::Presence:
        break;
    }
}

void Session::onPeerPortrait(const QString &contactId, const QByteArray &data)
{
    if (!m_roster->contains(contactId))
        return;
    // Decoded and made anew: what is kept is a small square whatever was sent.
    const QImage portrait = portraitFrom(pictureFromData(data), kPortraitExtent);
    const QString name =
            keepPicture(m_folder.pictureFolder(), pictureToData(portrait, kLargestPortrait));
    if (name.isEmpty() && !portrait.isNull())
        return; // better the old one than none
    Contact contact = m_roster->contact(contactId);
    contact.picture = pictureFile(name);
    m_roster->putPeer(contact);
}

} // namespace messenger
