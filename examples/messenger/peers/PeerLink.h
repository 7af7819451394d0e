#pragma once

#include "peers/PeerProtocol.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QObject>
#include <QtNetwork/QLocalSocket>

namespace messenger {

/// A connection to another running copy.
///
/// It expects "hello" within a few seconds, and closes when the other side breaks the protocol,
/// says too much at a time or does not listen. After closed() it is of no more use.
class PeerLink : public QObject
{
    Q_OBJECT

public:
    /// Owns \a socket, which is connected or about to be.
    PeerLink(QLocalSocket *socket, QObject *parent);
    ~PeerLink() override;

    void send(const PeerMessage &message);
    /// Closes the connection; closed() follows.
    void close();

    /// Whether it has closed because the other side is hostile.
    bool isTurnedAway() const { return m_isTurnedAway; }
    bool isGreeted() const { return !m_peer.id.isEmpty(); }
    /// What the other side last said of itself.
    const PeerMessage &peer() const { return m_peer; }

Q_SIGNALS:
    /// The other side has said who it is.
    void greeted();
    /// The other side says something, after it has greeted.
    void received(const messenger::PeerMessage &message);
    void closed();

private:
    void read();
    void take(const QByteArray &line);
    bool isTooMuch(qint64 byteCount);
    void turnAway();
    void noteClosed();

    QLocalSocket *m_socket;
    LineReader m_reader;
    PeerMessage m_peer;
    QElapsedTimer m_period;
    int m_linesInPeriod = 0;
    qint64 m_bytesInPeriod = 0;
    bool m_isClosed = false;
    bool m_isTurnedAway = false;
};

} // namespace messenger
