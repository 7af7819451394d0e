#pragma once

#include <ombrin/OmGlobal.h>

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
/// The skin is looked for beside the executable, in QCoreApplication::applicationDirPath():
///
/// | File                                | What it is                                             |
/// |-------------------------------------|--------------------------------------------------------|
/// | `skins/default/Global_Palette.ini`  | colours of the application palette                     |
/// | `skins/default/default.res`         | binary Qt resource: frames, title buttons, scroll bars |
/// | `skins/ombrin.res`                  | binary Qt resource: icons and all other images         |
/// | `skins/default/default.css`         | application style sheet                                |
///
/// The palette file has the sections \c Active, \c Disabled and \c Inactive, each with one key for
/// each of the colour roles \c Window, \c WindowText, \c Button, \c ButtonText, \c Base,
/// \c AlternateBase, \c BrightText, \c Text, \c Light, \c Midlight, \c Dark, \c Mid, \c Shadow,
/// \c Highlight, \c HighlightedText, \c Link and \c LinkVisited. A value is a colour name as QColor
/// reads it.
///
/// Nothing here reports an error. A missing or unreadable file leaves out what it would have given:
/// without images widgets show none, without a style sheet an empty one is set, and a palette entry
/// that is missing or makes no sense becomes an invalid colour, which paints black. A truncated or
/// damaged resource file is left out as a whole.
///
/// To be used from the GUI thread, while the QApplication exists; without one init() installs
/// nothing, and the next call counts as the first.
class OMBRIN_GUI_EXPORT OmSkin
{
public:
    /// Installs palette, resources and style and, when \a useSkin is true, the style sheet.
    ///
    /// Only the first call installs anything. Every call sets what useSkin() returns.
    static void init(bool useSkin);

    /// The argument of the last init(); true before the first.
    static bool useSkin();

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
