// A skin's palette file: loadGlobalPalette() reads whatever lies there.

#include "FuzzTarget.h"

#include <ombrin/OmSkin.h>

#include <QtCore/QDir>
#include <QtGui/QPalette>

namespace {

// OmSkin::init() reads the file once only, so that its steps must be called one by one. An explicit
// instantiation may name what is private.
void loadPalette();
template <void (*Load)()>
struct PaletteLoader
{
    friend void loadPalette() { Load(); }
};
template struct PaletteLoader<&ombrin::OmSkin::loadGlobalPalette>;

void run(ombrin::fuzz::Input input)
{
    const QDir skin(QCoreApplication::applicationDirPath() + QStringLiteral("/skins/default"));
    FUZZ_CHECK(skin.mkpath(QStringLiteral(".")));
    ombrin::fuzz::writeFile(skin.filePath(QStringLiteral("Global_Palette.ini")), input.rest());
    loadPalette();
    for (int role = 0; role < QPalette::NColorRoles; ++role) {
        const QColor color = QApplication::palette().color(static_cast<QPalette::ColorRole>(role));
        FUZZ_CHECK(!color.isValid() || color.spec() == QColor::Rgb);
    }
}

} // namespace

OMBRIN_FUZZ_TARGET(run)
