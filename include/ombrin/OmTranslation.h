#pragma once

#include <ombrin/OmGlobal.h>

#include <QtCore/QLocale>
#include <QtCore/QStringList>

namespace ombrin {

/// Has the library speak the user's language. Holds static functions only.
///
/// One call, at best before the first window:
///
/// \code
/// QApplication application(argc, argv);
/// ombrin::OmSkin::init(true);
/// ombrin::OmTranslation::load();
/// \endcode
///
/// The library's own language is English. Translations are files called \c ombringui_de.qm, or
/// \c ombringui_de_AT.qm for a variant of a language, and the first of these folders that holds one
/// is taken:
/// -# `translations` beside the executable, in QCoreApplication::applicationDirPath();
/// -# `share/ombrin/translations` of the installation the library was loaded from;
/// -# `ombrin/translations` in the system's data folders, QStandardPaths::GenericDataLocation.
///
/// Some texts in the library's menus and dialogs are Qt's own, such as those of file dialogs. Where
/// the application has not installed a translation of them, load() installs Qt's, if it is there.
///
/// The language can be changed at any time: widgets on the screen follow. To be used from the GUI
/// thread, while the application object exists.
///
/// \ingroup skin
class OMBRIN_GUI_EXPORT OmTranslation
{
public:
    /// Has the library speak the first language of \a locale, in the order of
    /// QLocale::uiLanguages(), that it knows, in place of the one it spoke. The default is the
    /// application's locale, which is the user's unless it was changed.
    ///
    /// Returns false and changes nothing where it knows none of them.
    static bool load(const QLocale &locale = QLocale());

    /// The languages that load() knows, such as "de" and "en", for a host that lets the user
    /// choose. English is always among them.
    static QStringList languages();

    OmTranslation() = delete;
};

} // namespace ombrin
