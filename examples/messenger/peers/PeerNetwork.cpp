#include "peers/PeerNetwork.h"

#include <QtCore/QTimer>

namespace messenger {

namespace {

constexpr int kMostLinks = 32;
constexpr int kMostPending = 8;
// Who was turned away would be back at once, and go on as before.
constexpr int kTurnedAwayMs = 60000;

PeerMessage messageOf(PeerMessage::Type type)
{
    PeerMessage message;
    message.type = type;
    return message;
}

} // namespace

PeerNetwork::PeerNetwork(const QString &registryPath, QObject *parent)
    : QObject(parent)
    , m_registry(registryPath)
{
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    m_server.setMaxPendingConnections(kMostPending);
    connect(&m_server, &QLocalServer::newConnection, this, &PeerNetwork::acceptConnections);
    connect(&m_registry, &PeerRegistry::changed, this, &PeerNetwork::meet);
}

PeerNetwork::~PeerNetwork()
{
    // Links tell of their end, which is of no interest any more.
    const QList<PeerLink *> links = findChildren<PeerLink *>(QString(), Qt::FindDirectChildrenOnly);
    for (PeerLink *link : links)
        link->disconnect(this);
}

void PeerNetwork::setSelf(const PeerMessage &hello)
{
    m_self = hello;
    m_self.type = PeerMessage::Type::Hello;
    if (!m_server.isListening()) {
        if (m_server.listen(m_registry.serverName(m_registry.ownName())))
            m_registry.signIn();
        return;
    }
    PeerMessage presence = m_self;
    presence.type = PeerMessage::Type::Presence;
    sendToAll(presence);
}

void PeerNetwork::setPortrait(const QByteArray &data)
{
    m_portrait = data;
    PeerMessage message = messageOf(PeerMessage::Type::Portrait);
    message.data = data;
    sendToAll(message);
}

bool PeerNetwork::isConnected(const QString &peerId) const
{
    return m_peers.contains(peerId);
}

PeerMessage PeerNetwork::peer(const QString &peerId) const
{
    const PeerLink *link = m_peers.value(peerId);
    return link ? link->peer() : PeerMessage();
}

// Connections

void PeerNetwork::meet(const QStringList &names)
{
    for (const QString &name : names) {
        if (m_registry.ownName() < name && !m_called.contains(name))
            connectTo(name);
    }
}

void PeerNetwork::connectTo(const QString &name)
{
    if (m_linkCount >= kMostLinks)
        return;
    auto *socket = new QLocalSocket;
    PeerLink *link = adopt(socket);
    m_called.insert(name, link);
    connect(link, &QObject::destroyed, this, [this, name] { m_called.remove(name); });
    connect(socket, &QLocalSocket::connected, link, [this, link] { introduceTo(link); });
    connect(socket, &QLocalSocket::errorOccurred, link,
            [this, link, name](QLocalSocket::LocalSocketError error) {
                const bool isGone = error == QLocalSocket::ServerNotFoundError
                                    || error == QLocalSocket::ConnectionRefusedError;
                if (isGone)
                    m_registry.remove(name);
                link->close();
            });
    socket->connectToServer(m_registry.serverName(name));
}

void PeerNetwork::acceptConnections()
{
    while (QLocalSocket *socket = m_server.nextPendingConnection()) {
        if (m_linkCount >= kMostLinks) {
            socket->abort();
            socket->deleteLater();
            continue;
        }
        introduceTo(adopt(socket));
    }
}

PeerLink *PeerNetwork::adopt(QLocalSocket *socket)
{
    auto *link = new PeerLink(socket, this);
    ++m_linkCount;
    connect(link, &PeerLink::greeted, this, [this, link] { onGreeted(link); });
    connect(link, &PeerLink::received, this,
            [this, link](const PeerMessage &message) { onReceived(link, message); });
    connect(link, &PeerLink::closed, this, [this, link] { onClosed(link); });
    return link;
}

void PeerNetwork::introduceTo(PeerLink *link) const
{
    link->send(m_self);
    PeerMessage portrait = messageOf(PeerMessage::Type::Portrait);
    portrait.data = m_portrait;
    link->send(portrait);
}

void PeerNetwork::onGreeted(PeerLink *link)
{
    const QString id = link->peer().id;
    if (id == m_self.id || m_peers.contains(id) || m_turnedAway.contains(id)) {
        link->close();
        return;
    }
    m_peers.insert(id, link);
    Q_EMIT presenceChanged(id, link->peer());
}

void PeerNetwork::onReceived(const PeerLink *link, const PeerMessage &message)
{
    const QString id = link->peer().id;
    if (message.type == PeerMessage::Type::Presence)
        Q_EMIT presenceChanged(id, link->peer());
    else
        Q_EMIT received(id, message);
}

void PeerNetwork::onClosed(PeerLink *link)
{
    --m_linkCount;
    const QString id = link->peer().id;
    if (link->isTurnedAway()) {
        m_turnedAway.insert(id);
        QTimer::singleShot(kTurnedAwayMs, this, [this, id] { m_turnedAway.remove(id); });
    }
    // As long as it is there, its copy is not called again.
    QTimer::singleShot(link->isTurnedAway() ? kTurnedAwayMs : 0, link, &QObject::deleteLater);
    if (m_peers.value(id) == link) {
        m_peers.remove(id);
        Q_EMIT left(id);
    }
}

// What is sent

bool PeerNetwork::sendText(const QString &peerId, const QString &text)
{
    PeerMessage message = messageOf(PeerMessage::Type::Text);
    message.text = text.left(kLongestText);
    return send(peerId, message);
}

bool PeerNetwork::sendPicture(const QString &peerId, const QByteArray &data)
{
    PeerMessage message = messageOf(PeerMessage::Type::Picture);
    message.data = data;
    return send(peerId, message);
}

bool PeerNetwork::sendTyping(const QString &peerId, bool isTyping)
{
    PeerMessage message = messageOf(PeerMessage::Type::Typing);
    message.isOn = isTyping;
    return send(peerId, message);
}

bool PeerNetwork::sendNudge(const QString &peerId)
{
    return send(peerId, messageOf(PeerMessage::Type::Nudge));
}

void PeerNetwork::sendToAll(const PeerMessage &message)
{
    // A copy: a peer that does not listen leaves.
    const QList<PeerLink *> links = m_peers.values();
    for (PeerLink *link : links)
        link->send(message);
}

bool PeerNetwork::send(const QString &peerId, const PeerMessage &message)
{
    PeerLink *link = m_peers.value(peerId);
    if (!link)
        return false;
    link->send(message);
    return isConnected(peerId);
}

} // namespace messenger
