#include <ombrin/OmSettings.h>

#include <QtCore/QSettings>

#include <memory>

namespace ombrin {

namespace {

// Opened anew for each call: QSettings shares the parsed file behind the scenes, and the host may
// set its organisation and application names at any time.
std::unique_ptr<QSettings> openSettings(const QString &file, const QString &group)
{
    auto settings = file.isEmpty() ? std::make_unique<QSettings>()
                                   : std::make_unique<QSettings>(file, QSettings::IniFormat);
    if (!group.isEmpty())
        settings->beginGroup(group);
    return settings;
}

} // namespace

OmSettings &OmSettings::instance()
{
    static OmSettings settings;
    return settings;
}

QVariant OmSettings::get(const QString &key, const QVariant &defaultValue,
                         const QString &group) const
{
    if (key.isEmpty())
        return defaultValue;
    return openSettings(m_file, group)->value(key, defaultValue);
}

void OmSettings::set(const QString &key, const QVariant &value, const QString &group)
{
    if (key.isEmpty())
        return;
    openSettings(m_file, group)->setValue(key, value);
}

void OmSettings::setFile(const QString &path)
{
    m_file = path;
}

} // namespace ombrin
