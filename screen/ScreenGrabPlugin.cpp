#include "screen/ScreenGrabPlugin.h"

#include "platform/InstalledFiles.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QJsonObject>
#include <QtCore/QLibrary>
#include <QtCore/QPluginLoader>

namespace ombrin {

namespace {

ScreenGrabPlugin *findPlugin()
{
    // Where the library is installed outside Qt's own folders, its plug-ins are too.
    QStringList paths = QCoreApplication::libraryPaths();
    const QString ours = InstalledFiles::pluginFolder();
    if (!ours.isEmpty() && !paths.contains(ours))
        paths.append(ours);
    for (const QString &path : qAsConst(paths)) {
        const QDir folder(path + QStringLiteral("/ombrin"));
        const QStringList files = folder.entryList(QDir::Files);
        for (const QString &file : files) {
            const QString name = folder.absoluteFilePath(file);
            if (!QLibrary::isLibrary(name))
                continue;
            QPluginLoader loader(name); // the plug-in stays loaded
            // Read before anything in the file runs.
            const QString iid = loader.metaData().value(QLatin1String("IID")).toString();
            if (iid != QLatin1String(OMBRIN_SCREEN_GRAB_IID))
                continue;
            if (auto *plugin = qobject_cast<ScreenGrabPlugin *>(loader.instance()))
                return plugin;
        }
    }
    return nullptr;
}

} // namespace

ScreenGrabPlugin *ScreenGrabPlugin::load()
{
    static ScreenGrabPlugin *plugin = nullptr;
    if (!plugin)
        plugin = findPlugin();
    return plugin;
}

} // namespace ombrin
