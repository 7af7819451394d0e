#include "core/SpellingBackend.h"

#ifdef OMBRIN_HAS_HUNSPELL
#include "core/HunspellBackend.h"
#endif

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QStandardPaths>

#include <algorithm>

namespace ombrin {

namespace {

// Ten times the largest dictionary in use.
constexpr qint64 kLargestFile = 128 * 1024 * 1024;
constexpr qint64 kLongestCount = 64;

SpellingBackendFactory &factoryInUse()
{
#ifdef OMBRIN_HAS_HUNSPELL
    static SpellingBackendFactory factory = &HunspellBackend::create;
#else
    static SpellingBackendFactory factory;
#endif
    return factory;
}

QStringList dictionaryFolders()
{
    QStringList folders;
    const auto add = [&folders](const QString &folder) {
        if (!folder.isEmpty() && !folders.contains(folder))
            folders.append(folder);
    };
    if (QCoreApplication::instance()) {
        add(QCoreApplication::applicationDirPath());
        add(QCoreApplication::applicationDirPath() + QStringLiteral("/dictionaries"));
    }
    const QStringList named = qEnvironmentVariable("DICPATH").split(QDir::listSeparator());
    for (const QString &folder : named)
        add(folder);

    QStringList data = QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation);
#ifdef Q_OS_UNIX
    data += {QStringLiteral("/usr/local/share"), QStringLiteral("/usr/share")};
#endif
    for (const QString &folder : std::as_const(data)) {
        add(folder + QStringLiteral("/hunspell"));
        add(folder + QStringLiteral("/myspell"));
        add(folder + QStringLiteral("/myspell/dicts"));
    }
    return folders;
}

// Opening a named pipe would hang.
bool isReadableFile(const QString &path)
{
    const QFileInfo file(path);
    return file.isFile() && file.isReadable() && file.size() <= kLargestFile;
}

// The list of words begins with their number, for which Hunspell allocates memory unseen.
bool isWordFile(const QString &path)
{
    QFile file(path);
    if (!isReadableFile(path) || !file.open(QIODevice::ReadOnly))
        return false;
    QByteArray start = file.read(kLongestCount);
    if (start.startsWith("\xEF\xBB\xBF"))
        start.remove(0, 3);
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    const auto end = std::find_if_not(start.cbegin(), start.cend(), isDigit);
    const qint64 count = start.left(static_cast<int>(end - start.cbegin())).toLongLong();
    return count > 0 && count <= file.size();
}

} // namespace

SpellingBackendFactory spellingBackendFactory()
{
    return factoryInUse();
}

void setSpellingBackendFactory(const SpellingBackendFactory &factory)
{
    factoryInUse() = factory;
}

bool areUsable(const SpellingFiles &files)
{
    return isReadableFile(files.affixes) && isWordFile(files.words);
}

QHash<QString, SpellingFiles> installedDictionaries()
{
    QHash<QString, SpellingFiles> dictionaries;
    const QStringList folders = dictionaryFolders();
    for (const QString &folder : folders) {
        const QFileInfoList files = QDir(folder).entryInfoList({QStringLiteral("*.dic")});
        for (const QFileInfo &words : files) {
            const QString name = words.completeBaseName();
            const QString affixes = words.path() + QLatin1Char('/') + name + QStringLiteral(".aff");
            const SpellingFiles pair{affixes, words.filePath()};
            // A comma separates names.
            if (!dictionaries.contains(name) && !name.contains(QLatin1Char(',')) && areUsable(pair))
                dictionaries.insert(name, pair);
        }
    }
    return dictionaries;
}

} // namespace ombrin
