#pragma once

#include <ombrin/OmGlobal.h>

#include <QtCore/QStringList>
#include <QtGui/QPalette>

class QSettings;

namespace ombrin {

/// Installs the library's look on the application. Holds static functions only.
///
/// Call init() once, right after constructing the QApplication and before creating any of the
/// library's windows or widgets: these take their pictures from the resources and their colours
/// from the palette that init() installs.
///
/// \code
/// QApplication application(argc, argv);
/// ombrin::OmSkin::init(true);
/// \endcode
///
/// A skin is a folder with these files:
///
/// | File                          | What it is                                             |
/// |-------------------------------|--------------------------------------------------------|
/// | `default/Global_Palette.ini`  | colours of the application palette                     |
/// | `default/default.res`         | binary Qt resource: frames, title buttons, scroll bars |
/// | `ombrin.res`                  | binary Qt resource: icons and all other images         |
/// | `default/default.css`         | application style sheet                                |
///
/// It is taken as a whole from the first of these places that holds one of the files:
/// -# `skins` beside the executable, in QCoreApplication::applicationDirPath();
/// -# the folders that the environment variable \c OMBRIN_SKIN_PATH names, separated as in \c PATH;
/// -# the folders that the host named with addSearchPath();
/// -# `share/ombrin/skins` of the installation the library was loaded from, wherever that has been
///    moved to;
/// -# `ombrin/skins` in the system's data folders, QStandardPaths::GenericDataLocation.
///
/// So a host that ships a skin of its own beside its executable gets that one and no other, and a
/// host that ships none gets the one installed with the library.
///
/// The palette file has the sections \c Active, \c Disabled and \c Inactive, each with one key for
/// each of the colour roles \c Window, \c WindowText, \c Button, \c ButtonText, \c Base,
/// \c AlternateBase, \c BrightText, \c Text, \c Light, \c Midlight, \c Dark, \c Mid, \c Shadow,
/// \c Highlight, \c HighlightedText, \c Link and \c LinkVisited. A value is a colour name as QColor
/// reads it.
///
/// Nothing here reports an error. Where there is no skin at all, and where a skin lacks a file,
/// init() does what it can. A missing or unreadable file leaves out what it would have given:
/// without images widgets show none, without a style sheet an empty one is set, and a palette entry
/// that is missing or makes no sense becomes an invalid colour, which paints black. A truncated or
/// damaged resource file is left out as a whole, and so is a palette file of more than a megabyte
/// or one in which a value begins with \c \@ or a backslash: QSettings would make objects of those.
///
/// To be used from the GUI thread, while the QApplication exists; without one init() installs
/// nothing, and the next call counts as the first.
///
/// \ingroup skin
class OMBRIN_GUI_EXPORT OmSkin
{
public:
    /// Installs palette, resources and style and, when \a useSkin is true, the style sheet.
    ///
    /// Only the first call installs anything. Every call sets what useSkin() returns.
    static void init(bool useSkin);

    /// The argument of the last init(); true before the first.
    static bool useSkin();

    /// Where the skin is looked for, the first place first.
    static QStringList searchPaths();
    /// Looks for the skin in \a folder too, such as a host's own data folder; before init().
    ///
    /// An empty name and one that was added before are ignored; a folder need not exist.
    static void addSearchPath(const QString &folder);
    /// The folder of the skin, or where there is none the first of searchPaths().
    static QString folder();

    /// The colours of the skin, which init() makes the application's palette.
    static QPalette palette();
    /// Registers the skin's pictures and nothing else, for hosts that keep a palette and a style of
    /// their own. A second call does nothing.
    static void registerPictures();

    OmSkin() = delete;

private:
    static void loadGlobalPalette();
    static void loadPaletteEntry(QPalette::ColorGroup group, const QString &groupName,
                                 QPalette::ColorRole role, const QString &roleName,
                                 QPalette *palette, const QSettings &settings);
    static void loadResources();
    static void loadProxyStyle();
    static void loadXml();
};

} // namespace ombrin
