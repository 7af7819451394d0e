#pragma once

#include <QtCore/QFileSystemWatcher>
#include <QtCore/QObject>
#include <QtCore/QStringList>
#include <QtCore/QTimer>

namespace messenger {

/// The running copies of the messenger on this machine: each has a file named after it in a folder
/// that they share.
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
    /// Signs this copy in, and looks for others from now on.
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
    void look();

    QString m_path;
    QString m_ownName;
    QFileSystemWatcher m_watcher;
    QTimer m_timer;
    bool m_isSignedIn = false;
};

} // namespace messenger
