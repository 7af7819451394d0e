#include "StylePlugin.h"

#include "SkinnedStyle.h"

#include "platform/LibraryFile.h"

#include <ombrin/OmSkin.h>

#include <QtCore/QFileInfo>

QStyle *StylePlugin::create(const QString &key)
{
    if (key.compare(QLatin1String("ombrin"), Qt::CaseInsensitive) != 0)
        return nullptr;
    const QString ownFile = ombrin::libraryFile();
    if (!ownFile.isEmpty())
        ombrin::OmSkin::addSearchPath(QFileInfo(ownFile).absolutePath() + QStringLiteral("/skins"));
    ombrin::OmSkin::registerPictures();
    return new SkinnedStyle;
}
