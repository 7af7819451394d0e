#pragma once

#include <ombrin/OmGlobal.h>

#include <QtCore/QStringList>

/// Where an installation of the library keeps what belongs to it. An installed tree may be moved as
/// a whole: its folders are found from where the library itself lies.
namespace ombrin::InstalledFiles {

/// The folders in which data called \a name ("skins", "translations") may lie, the likeliest first:
/// the one installed together with the library, then those below the system's data folders
/// (QStandardPaths::GenericDataLocation). None of them need exist.
OMBRIN_AUTOTEST_EXPORT QStringList dataFolders(const QString &name);

/// The folder of Qt plug-ins that is installed together with the library, or empty.
OMBRIN_AUTOTEST_EXPORT QString pluginFolder();

} // namespace ombrin::InstalledFiles
