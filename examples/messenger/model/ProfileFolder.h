#pragma once

#include <QtCore/QLockFile>
#include <QtCore/QString>

#include <memory>

namespace messenger {

/// The folder in which one user of the messenger has everything: state, conversations, pictures.
///
/// Only one running copy may have it; several copies on one machine have a profile each.
class ProfileFolder
{
public:
    /// The profile in \a path, which is made when it is missing.
    explicit ProfileFolder(const QString &path);
    ~ProfileFolder();

    /// The profile \a name of the user who is logged in, which must be a contact id.
    static QString pathFor(const QString &name);

    /// Takes the folder for this process until the object is destroyed; false if it cannot be
    /// written to or another process has it. A process that was killed leaves no lock.
    bool lock();

    QString path() const { return m_path; }
    QString stateFile() const;
    QString draftsFile() const;
    /// \a contactId must be a contact id.
    QString historyFile(const QString &contactId) const;
    QString pictureFolder() const;

private:
    QString m_path;
    std::unique_ptr<QLockFile> m_lock;
};

} // namespace messenger
