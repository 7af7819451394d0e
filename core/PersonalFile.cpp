#include "core/PersonalFile.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QList>
#include <QtCore/QLockFile>
#include <QtCore/QSaveFile>

#include <algorithm>
#include <optional>

namespace ombrin {

namespace {

constexpr qint64 kLargestFile = 16 * 1024 * 1024;
constexpr int kPatienceMs = 10'000;

// Nothing if there is a file that cannot be read. Lines are bytes, so that one in another encoding
// survives.
std::optional<QList<QByteArray>> readLines(const QString &path)
{
    const QFileInfo info(path);
    if (!info.exists() && !info.isSymLink())
        return QList<QByteArray>();
    QFile file(path);
    // Opening a named pipe would hang.
    if (!info.isFile() || info.size() > kLargestFile || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    QByteArray contents = file.readAll();
    if (file.error() != QFile::NoError)
        return std::nullopt;
    if (contents.startsWith("\xEF\xBB\xBF"))
        contents.remove(0, 3);
    contents.replace("\r\n", "\n");
    QList<QByteArray> lines = contents.split('\n');
    lines.removeAll(QByteArray());
    return lines;
}

QByteArray keyOf(const QByteArray &line)
{
    const int tab = static_cast<int>(line.indexOf('\t'));
    return tab < 0 ? line : line.left(tab);
}

} // namespace

PersonalFile::PersonalFile(const QString &path)
    : m_path(path)
{}

QStringList PersonalFile::lines() const
{
    QStringList result;
    const QList<QByteArray> lines = readLines(m_path).value_or(QList<QByteArray>());
    for (const QByteArray &line : lines)
        result.append(QString::fromUtf8(line));
    return result;
}

void PersonalFile::add(const QString &line)
{
    const std::lock_guard lock(m_mutex);
    m_added.push_back(line.toUtf8());
}

void PersonalFile::save()
{
    std::vector<QByteArray> added;
    {
        const std::lock_guard lock(m_mutex);
        added.swap(m_added);
    }
    if (added.empty() || write(added))
        return;
    const std::lock_guard lock(m_mutex);
    m_added.insert(m_added.begin(), added.begin(), added.end());
}

bool PersonalFile::write(const std::vector<QByteArray> &added) const
{
    QDir().mkpath(QFileInfo(m_path).path());
    QLockFile lock(m_path + QStringLiteral(".lock"));
    if (!lock.tryLock(kPatienceMs))
        return false;
    std::optional<QList<QByteArray>> lines = readLines(m_path);
    if (!lines)
        return false;
    for (const QByteArray &line : added) {
        const auto hasSameKey = [&line](const QByteArray &other) {
            return keyOf(other) == keyOf(line);
        };
        lines->erase(std::remove_if(lines->begin(), lines->end(), hasSameKey), lines->end());
        lines->append(line);
    }
    QSaveFile file(m_path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    for (const QByteArray &line : std::as_const(*lines))
        file.write(line + '\n');
    return file.commit();
}

} // namespace ombrin
