#pragma once

#include <ombrin/OmGlobal.h>

#include <QtCore/QString>
#include <QtCore/QVariant>

namespace ombrin {

/// The user's settings, shared by the library and its host.
///
/// Settings live where QSettings keeps those of the host's organisation and application, so set
/// \c QCoreApplication::setOrganizationName() and \c setApplicationName() first. A value is
/// written to disk before set() returns; nothing is lost when the program is killed afterwards.
///
/// \code
/// auto &settings = ombrin::OmSettings::instance();
/// settings.set(QStringLiteral("save_avatar_path"), folder, QStringLiteral("omchat"));
/// \endcode
///
/// To be used from one thread at a time.
///
/// \ingroup core
class OMBRIN_CORE_EXPORT OmSettings
{
public:
    /// The one instance, made on first use; never destroyed before the program ends.
    static OmSettings &instance();

    /// The value of \a key in \a group (empty: outside any group), or \a defaultValue when it was
    /// never set, cannot be read, or \a key is empty.
    QVariant get(const QString &key, const QVariant &defaultValue = QVariant(),
                 const QString &group = QString()) const;

    /// Stores \a value under \a key in \a group (empty: outside any group). An empty \a key is
    /// ignored; a failed write is silent and leaves the old value.
    void set(const QString &key, const QVariant &value, const QString &group = QString());

    /// Keeps the settings in the INI file \a path from now on instead of the host's own settings;
    /// an empty path goes back to those. For tests and portable installations.
    void setFile(const QString &path);

    OmSettings(const OmSettings &) = delete;
    OmSettings &operator=(const OmSettings &) = delete;

private:
    OmSettings() = default;

    QString m_file;
};

} // namespace ombrin
