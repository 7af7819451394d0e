#include "platform/InstalledFiles.h"

#include "platform/LibraryFile.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QStandardPaths>

namespace ombrin::InstalledFiles {

namespace {

// \a path as the build gives it: relative to the library's folder, or absolute.
QString fromLibrary(const char *path)
{
    // The loader may have come through a symbolic link, from which the way would be another.
    const QString library = QFileInfo(libraryFile()).canonicalPath();
    if (library.isEmpty())
        return QString();
    return QDir::cleanPath(QDir(library).absoluteFilePath(QString::fromUtf8(path)));
}

} // namespace

QStringList dataFolders(const QString &name)
{
    QStringList folders;
    const QString ours = fromLibrary(OMBRIN_DATA_FROM_LIBRARY);
    if (!ours.isEmpty())
        folders.append(ours + QLatin1Char('/') + name);
    const QStringList shared =
            QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation);
    for (const QString &folder : shared)
        folders.append(QStringLiteral("%1/ombrin/%2").arg(folder, name));
    folders.removeDuplicates();
    return folders;
}

QString pluginFolder()
{
    return fromLibrary(OMBRIN_PLUGINS_FROM_LIBRARY);
}

} // namespace ombrin::InstalledFiles
