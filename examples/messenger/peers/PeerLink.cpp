#include "peers/PeerLink.h"

#include <QtCore/QPointer>
#include <QtCore/QTimer>

namespace messenger {

namespace {

constexpr int kGreetingMs = 10000;
constexpr int kPeriodMs = 10000;
// People, and programs that speak for them, say less.
constexpr int kMostLinesInPeriod = 100;
constexpr qint64 kMostBytesInPeriod = 8 * kLongestLine;
constexpr qint64 kReadAtOnce = 64 << 10;
constexpr qint64 kLargestBacklog = 4 * kLongestLine;

} // namespace

PeerLink::PeerLink(QLocalSocket *socket, QObject *parent)
    : QObject(parent)
    , m_socket(socket)
{
    m_socket->setParent(this);
    // What is not read yet waits with the sender.
    m_socket->setReadBufferSize(kReadAtOnce);
    connect(m_socket, &QLocalSocket::readyRead, this, &PeerLink::read);
    connect(m_socket, &QLocalSocket::disconnected, this, &PeerLink::noteClosed);
    const auto closeIfSilent = [this] {
        if (!isGreeted())
            close();
    };
    QTimer::singleShot(kGreetingMs, this, closeIfSilent);
    m_period.start();
    // For what came before there was somebody to hear of it.
    QTimer::singleShot(0, this, &PeerLink::read);
}

PeerLink::~PeerLink()
{
    m_socket->disconnect(this);
}

void PeerLink::send(const PeerMessage &message)
{
    if (m_isClosed)
        return;
    if (m_socket->bytesToWrite() > kLargestBacklog) {
        close();
        return;
    }
    m_socket->write(encode(message));
    m_socket->flush();
}

void PeerLink::close()
{
    m_socket->abort();
    noteClosed();
}

void PeerLink::turnAway()
{
    m_isTurnedAway = true;
    close();
}

void PeerLink::noteClosed()
{
    if (m_isClosed)
        return;
    // What was said before the end still counts.
    const QPointer<PeerLink> guard(this);
    if (m_socket->isOpen())
        read();
    if (!guard || m_isClosed)
        return;
    m_isClosed = true;
    Q_EMIT closed();
}

void PeerLink::read()
{
    const QPointer<PeerLink> guard(this);
    while (!m_isClosed && m_socket->bytesAvailable() > 0) {
        if (!m_reader.feed(m_socket->read(kReadAtOnce))) {
            turnAway();
            return;
        }
        while (const std::optional<QByteArray> line = m_reader.nextLine()) {
            if (isTooMuch(line->size()))
                turnAway();
            else
                take(*line);
            if (!guard || m_isClosed)
                return;
        }
    }
}

bool PeerLink::isTooMuch(qint64 byteCount)
{
    if (m_period.hasExpired(kPeriodMs)) {
        m_period.start();
        m_linesInPeriod = 0;
        m_bytesInPeriod = 0;
    }
    m_bytesInPeriod += byteCount;
    return ++m_linesInPeriod > kMostLinesInPeriod || m_bytesInPeriod > kMostBytesInPeriod;
}

void PeerLink::take(const QByteArray &line)
{
    PeerMessage message;
    const Verdict verdict = decode(line, &message);
    if (verdict == Verdict::Unknown)
        return;
    const bool isHello = message.type == PeerMessage::Type::Hello;
    if (verdict == Verdict::Hostile || isHello == isGreeted()) {
        turnAway();
        return;
    }
    if (isHello) {
        m_peer = message;
        Q_EMIT greeted();
        return;
    }
    if (message.type == PeerMessage::Type::Presence) {
        m_peer.name = message.name;
        m_peer.status = message.status;
        m_peer.remark = message.remark;
    }
    Q_EMIT received(message);
}

} // namespace messenger
