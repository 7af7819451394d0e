#pragma once

#include <ombrin/OmGlobal.h>

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <mutex>
#include <vector>

namespace ombrin {

/// A UTF-8 file of lines that several programs may add to. What stands before the first tab of a
/// line is its key; a new line takes the place of an old one with the same key.
///
/// add() and save() may be called from different threads.
class OMBRIN_CORE_AUTOTEST_EXPORT PersonalFile
{
public:
    explicit PersonalFile(const QString &path);

    /// The lines on disk; none if there is no file or it cannot be read.
    QStringList lines() const;

    /// Adds \a line, which is to be one line, to what save() will write.
    void add(const QString &line);

    /// Merges what was added into the file, which is written whole or not at all. What could not be
    /// written is tried again the next time.
    void save();

private:
    bool write(const std::vector<QByteArray> &added) const;

    QString m_path;
    std::mutex m_mutex;
    std::vector<QByteArray> m_added;
};

} // namespace ombrin
