#pragma once

#include <QtCore/QFileSystemWatcher>
#include <QtCore/QLockFile>
#include <QtCore/QObject>
#include <QtCore/QStringList>
#include <QtCore/QTimer>

#include <memory>

namespace messenger {

/// The running copies of the messenger on this machine: each has a lock file named after it in a
/// folder that they share. What a copy that was killed leaves behind is cleared away by the others.
class PeerRegistry : public QObject
{
    Q_OBJECT

public:
    /// Makes the folder \a path where it is missing; only the user may read it.
    explicit PeerRegistry(const QString &path, QObject *parent = nullptr);
    /// Signs this copy out.
    ~PeerRegistry() override;

    /// The folder for the user who is logged in.
    static QString defaultPath();

    /// The name of this copy, which is made up anew each time.
    QString ownName() const { return m_ownName; }
    /// Signs this copy in if nothing keeps it from it, and looks for others from now on.
    void signIn();
    /// Takes out \a name, whose copy does not answer.
    void remove(const QString &name);
    /// What the server of the copy \a name listens to.
    QString serverName(const QString &name) const;

Q_SIGNALS:
    /// The copies that have signed in have changed, or may have; \a names is without this one.
    void changed(const QStringList &names);

private:
    QString signFile(const QString &name) const;
    bool isAlive(const QString &name) const;
    void look();

    QString m_path;
    QString m_ownName;
    QFileSystemWatcher m_watcher;
    QTimer m_timer;
    std::unique_ptr<QLockFile> m_sign;
};

} // namespace messenger
