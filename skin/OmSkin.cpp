#include <ombrin/OmSkin.h>

#include <ombrin/OmStyle2.h>

#include "skin/ResourceFile.h"

#include <QtCore/QFile>
#include <QtCore/QResource>
#include <QtCore/QSettings>
#include <QtWidgets/QApplication>

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

QString skinFile(const char *name)
{
    return QStringLiteral("%1/skins/%2")
            .arg(QCoreApplication::applicationDirPath(), QLatin1String(name));
}

void registerResource(const QString &path)
{
    if (isIntactResourceFile(path))
        QResource::registerResource(path);
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

void OmSkin::loadGlobalPalette()
{
    QPalette palette;
    const QSettings settings(skinFile("default/Global_Palette.ini"), QSettings::IniFormat);
    for (const GroupName &group : kGroups) {
        for (const RoleName &role : kRoles) {
            loadPaletteEntry(group.group, QLatin1String(group.name), role.role,
                             QLatin1String(role.name), &palette, settings);
        }
    }
    QApplication::setPalette(palette);
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
    registerResource(skinFile("default/default.res"));
    registerResource(skinFile("ombrin.res"));
}

void OmSkin::loadProxyStyle()
{
    QApplication::setStyle(new OmStyle2);
}

void OmSkin::loadXml()
{
    if (!g_useSkin)
        return;
    QFile file(skinFile("default/default.css"));
    // A file that cannot be opened reads as empty, and an empty style sheet is installed.
    const bool opened = file.open(QIODevice::ReadOnly);
    qApp->setStyleSheet(QString::fromUtf8(opened ? file.readAll() : QByteArray()));
    file.close();
}

} // namespace ombrin
