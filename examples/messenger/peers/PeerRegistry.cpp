#include "peers/PeerRegistry.h"

#include "model/Contact.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QRandomGenerator>
#include <QtCore/QStandardPaths>
#include <QtNetwork/QLocalServer>

namespace messenger {

namespace {

// Not every file system tells of changes.
constexpr int kLookMs = 2000;
constexpr int kMostCopies = 64;

QString suffix()
{
    return QStringLiteral(".copy");
}

} // namespace

PeerRegistry::PeerRegistry(const QString &path, QObject *parent)
    : QObject(parent)
    , m_path(path)
    , m_ownName(QString::number(QRandomGenerator::system()->generate64(), 16))
{
    QDir().mkpath(path);
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, &PeerRegistry::look);
    connect(&m_timer, &QTimer::timeout, this, &PeerRegistry::look);
}

PeerRegistry::~PeerRegistry() = default;

QString PeerRegistry::defaultPath()
{
    const QString runtime = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    return runtime + QStringLiteral("/ombrin-messenger");
}

void PeerRegistry::signIn()
{
    m_sign = std::make_unique<QLockFile>(signFile(m_ownName));
    m_sign->setStaleLockTime(0);
    m_sign->tryLock(0);
    m_watcher.addPath(m_path);
    m_timer.start(kLookMs);
    QMetaObject::invokeMethod(this, &PeerRegistry::look, Qt::QueuedConnection);
}

void PeerRegistry::remove(const QString &name)
{
    if (isContactId(name) && name != m_ownName)
        QFile::remove(signFile(name));
}

// The lock of a process that is gone can be had, and is gone when it is let go.
bool PeerRegistry::isAlive(const QString &name) const
{
    QLockFile sign(signFile(name));
    sign.setStaleLockTime(0);
    if (!sign.tryLock(0))
        return true;
    QLocalServer::removeServer(serverName(name));
    return false;
}

QString PeerRegistry::serverName(const QString &name) const
{
#ifdef Q_OS_WIN
    return QStringLiteral("ombrin-messenger-") + name;
#else
    return QDir(m_path).filePath(name + QStringLiteral(".socket"));
#endif
}

QString PeerRegistry::signFile(const QString &name) const
{
    return QDir(m_path).filePath(name + suffix());
}

void PeerRegistry::look()
{
    const QStringList files = QDir(m_path).entryList({QLatin1Char('*') + suffix()}, QDir::Files);
    QStringList names;
    for (const QString &file : files) {
        const QString name = file.chopped(suffix().size());
        if (isContactId(name) && name != m_ownName && names.size() < kMostCopies && isAlive(name))
            names.append(name);
    }
    Q_EMIT changed(names);
}

} // namespace messenger
