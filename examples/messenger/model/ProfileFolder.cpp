#include "model/ProfileFolder.h"

#include <QtCore/QDir>
#include <QtCore/QStandardPaths>

namespace messenger {

ProfileFolder::ProfileFolder(const QString &path)
    : m_path(path)
{
    QDir folder(path);
    folder.mkpath(QStringLiteral("history"));
    folder.mkpath(QStringLiteral("pictures"));
}

ProfileFolder::~ProfileFolder() = default;

QString ProfileFolder::pathFor(const QString &name)
{
    return QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation)
           + QStringLiteral("/profiles/") + name;
}

bool ProfileFolder::lock()
{
    m_lock = std::make_unique<QLockFile>(QDir(m_path).filePath(QStringLiteral("lock")));
    // Only a lock whose process is gone is stale, however old it is.
    m_lock->setStaleLockTime(0);
    return m_lock->tryLock(0);
}

QString ProfileFolder::stateFile() const
{
    return QDir(m_path).filePath(QStringLiteral("state.json"));
}

QString ProfileFolder::draftsFile() const
{
    return QDir(m_path).filePath(QStringLiteral("drafts.json"));
}

QString ProfileFolder::historyFile(const QString &contactId) const
{
    // Not the bare id, which some systems keep for devices: "nul", "con".
    return QDir(m_path).filePath(QStringLiteral("history/with-%1.jsonl").arg(contactId));
}

QString ProfileFolder::pictureFolder() const
{
    return QDir(m_path).filePath(QStringLiteral("pictures"));
}

} // namespace messenger
