#include <ombrin/OmSkin.h>

#include <ombrin/OmStyle2.h>

#include "platform/InstalledFiles.h"
#include "skin/PaletteFile.h"
#include "skin/ResourceFile.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QResource>
#include <QtCore/QSettings>
#include <QtWidgets/QApplication>

#include <algorithm>

namespace ombrin {

namespace {

bool g_useSkin = true;
bool g_initialised = false;

struct GroupName
{
    QPalette::ColorGroup group;
    const char *name;
};

struct RoleName
{
    QPalette::ColorRole role;
    const char *name;
};

constexpr GroupName kGroups[] = {
        {QPalette::Active, "Active"},
        {QPalette::Disabled, "Disabled"},
        {QPalette::Inactive, "Inactive"},
};

constexpr RoleName kRoles[] = {
        {QPalette::Window, "Window"},
        {QPalette::WindowText, "WindowText"},
        {QPalette::Button, "Button"},
        {QPalette::ButtonText, "ButtonText"},
        {QPalette::Base, "Base"},
        {QPalette::AlternateBase, "AlternateBase"},
        {QPalette::BrightText, "BrightText"},
        {QPalette::Text, "Text"},
        {QPalette::Light, "Light"},
        {QPalette::Midlight, "Midlight"},
        {QPalette::Dark, "Dark"},
        {QPalette::Mid, "Mid"},
        {QPalette::Shadow, "Shadow"},
        {QPalette::Highlight, "Highlight"},
        {QPalette::HighlightedText, "HighlightedText"},
        {QPalette::Link, "Link"},
        {QPalette::LinkVisited, "LinkVisited"},
};

constexpr const char *kPaletteFile = "default/Global_Palette.ini";
constexpr const char *kStyleSheetFile = "default/default.css";
constexpr const char *kResourceFiles[] = {"default/default.res", "ombrin.res"};

QStringList &addedPaths()
{
    static QStringList paths;
    return paths;
}

QString fileIn(const QString &folder, const char *name)
{
    return QStringLiteral("%1/%2").arg(folder, QLatin1String(name));
}

bool holdsSkin(const QString &folder)
{
    const auto isThere = [&folder](const char *name) {
        return QFileInfo::exists(fileIn(folder, name));
    };
    return isThere(kPaletteFile) || isThere(kStyleSheetFile)
           || std::any_of(std::begin(kResourceFiles), std::end(kResourceFiles), isThere);
}

void registerResource(const QString &path)
{
    static QStringList registered;
    if (registered.contains(path) || !isIntactResourceFile(path))
        return;
    if (QResource::registerResource(path))
        registered.append(path);
}

} // namespace

void OmSkin::init(bool useSkin)
{
    g_useSkin = useSkin;
    if (!qobject_cast<QApplication *>(QCoreApplication::instance()))
        return;
    if (!g_initialised) {
        loadGlobalPalette();
        loadResources();
        loadProxyStyle();
        loadXml();
    }
    g_initialised = true;
}

bool OmSkin::useSkin()
{
    return g_useSkin;
}

QStringList OmSkin::searchPaths()
{
    QStringList paths;
    if (QCoreApplication::instance())
        paths.append(QCoreApplication::applicationDirPath() + QStringLiteral("/skins"));
    paths += qEnvironmentVariable("OMBRIN_SKIN_PATH")
                     .split(QDir::listSeparator(), Qt::SkipEmptyParts);
    paths += addedPaths();
    paths += InstalledFiles::dataFolders(QStringLiteral("skins"));
    return paths;
}

void OmSkin::addSearchPath(const QString &folder)
{
    if (!folder.isEmpty() && !addedPaths().contains(folder))
        addedPaths().append(folder);
}

QString OmSkin::folder()
{
    const QStringList paths = searchPaths();
    const auto found = std::find_if(paths.begin(), paths.end(), holdsSkin);
    return found == paths.end() ? paths.value(0) : *found;
}

QPalette OmSkin::palette()
{
    QPalette palette;
    const QString file = fileIn(folder(), kPaletteFile);
    const QSettings settings(isPlainPaletteFile(file) ? file : QStringLiteral(":/no.palette"),
                             QSettings::IniFormat);
    for (const GroupName &group : kGroups) {
        for (const RoleName &role : kRoles) {
            loadPaletteEntry(group.group, QLatin1String(group.name), role.role,
                             QLatin1String(role.name), &palette, settings);
        }
    }
    return palette;
}

void OmSkin::registerPictures()
{
    const QString skin = folder();
    for (const char *name : kResourceFiles)
        registerResource(fileIn(skin, name));
}

void OmSkin::loadGlobalPalette()
{
    QApplication::setPalette(palette());
}

void OmSkin::loadPaletteEntry(QPalette::ColorGroup group, const QString &groupName,
                              QPalette::ColorRole role, const QString &roleName, QPalette *palette,
                              const QSettings &settings)
{
    const QString key = QStringLiteral("%1/%2").arg(groupName, roleName);
    QColor color;
    color.setNamedColor(settings.value(key, QVariant()).toString());
    palette->setBrush(group, role, QBrush(color, Qt::SolidPattern));
}

void OmSkin::loadResources()
{
    registerPictures();
}

void OmSkin::loadProxyStyle()
{
    QApplication::setStyle(new OmStyle2);
}

void OmSkin::loadXml()
{
    if (!g_useSkin)
        return;
    QFile file(fileIn(folder(), kStyleSheetFile));
    // A file that cannot be opened reads as empty, and an empty style sheet is installed.
    const bool opened = file.open(QIODevice::ReadOnly);
    qApp->setStyleSheet(QString::fromUtf8(opened ? file.readAll() : QByteArray()));
    file.close();
}

} // namespace ombrin
