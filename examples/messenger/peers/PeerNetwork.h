#pragma once

#include "peers/PeerLink.h"
#include "peers/PeerRegistry.h"

#include <QtCore/QHash>
#include <QtCore/QObject>
#include <QtCore/QSet>
#include <QtNetwork/QLocalServer>

namespace messenger {

/// The other running copies of the messenger on this machine, as people to talk to.
///
/// Of two copies the one whose name comes first connects to the other. A copy that does not answer
/// is taken out of the registry, so that what a killed copy leaves behind is soon gone.
class PeerNetwork : public QObject
{
    Q_OBJECT

public:
    /// Meets others through the folder \a registryPath.
    explicit PeerNetwork(const QString &registryPath, QObject *parent = nullptr);
    ~PeerNetwork() override;

    /// Who this copy is, for peers. Tells those that are connected, and looks for others from the
    /// first call on. Values as in a PeerMessage of the type Hello.
    void setSelf(const PeerMessage &hello);
    /// The picture of this copy's user; empty for none.
    void setPortrait(const QByteArray &data);

    bool isConnected(const QString &peerId) const;
    /// What the peer last said of itself; without an id if it is not connected.
    PeerMessage peer(const QString &peerId) const;
    int size() const { return static_cast<int>(m_peers.size()); }

    /// \name To a peer
    /// Whether it is connected.
    /// \{
    bool sendText(const QString &peerId, const QString &text);
    bool sendPicture(const QString &peerId, const QByteArray &data);
    bool sendTyping(const QString &peerId, bool isTyping);
    bool sendNudge(const QString &peerId);
    /// \}

Q_SIGNALS:
    /// A peer has come, or has changed its presence.
    void presenceChanged(const QString &peerId, const messenger::PeerMessage &peer);
    void left(const QString &peerId);
    /// A peer says something other than its presence.
    void received(const QString &peerId, const messenger::PeerMessage &message);

private:
    void meet(const QStringList &names);
    void acceptConnections();
    void connectTo(const QString &name);
    PeerLink *adopt(QLocalSocket *socket);
    void onGreeted(PeerLink *link);
    void onReceived(const PeerLink *link, const PeerMessage &message);
    void onClosed(PeerLink *link);
    void introduceTo(PeerLink *link) const;
    void sendToAll(const PeerMessage &message);
    bool send(const QString &peerId, const PeerMessage &message);

    PeerRegistry m_registry;
    QLocalServer m_server;
    PeerMessage m_self;
    QByteArray m_portrait;
    // By the name of the copy, while there is a connection that this copy has made.
    QHash<QString, QObject *> m_called;
    // By the id of the account; a peer that greets with an id that is taken is turned away.
    QHash<QString, PeerLink *> m_peers;
    // Ids of the accounts that are not heard for a while.
    QSet<QString> m_turnedAway;
    int m_linkCount = 0;
};

} // namespace messenger
