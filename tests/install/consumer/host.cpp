// A host: shows a skinned window and looks whether the skin is there.
//
//   host SKIN-FOLDER [PLUG-IN...]

#include "expect.h"

#include <ombrin/OmSkin.h>
#include <ombrin/OmTranslation.h>
#include <ombrin/OmVersion.h>
#include <ombrin/OmWindow.h>

#include <QApplication>
#include <QFile>
#include <QImage>
#include <QLabel>
#include <QPluginLoader>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    static_assert(OMBRIN_VERSION >= QT_VERSION_CHECK(0, 1, 0), "an old header");

    expect(ombrin::OmSkin::folder() == arguments.value(1), "the skin is that of the installation");
    ombrin::OmSkin::init(true);

    ombrin::OmWindow window;
    window.setWindowTitle(QStringLiteral("Hello"));
    window.setWidget(new QLabel(QStringLiteral("A window of your own")));
    window.resize(400, 300);
    window.show();
    QApplication::processEvents();

    const QImage picture = window.grab().toImage();
    const QImage frame(window.isActiveWindow() ? QStringLiteral(":/left_active")
                                               : QStringLiteral(":/left_inactive"));
    expect(!frame.isNull(), "the skin's pictures are registered");
    expect(picture.pixelColor(1, 150) == frame.pixelColor(1, 0), "the frame is the skin's");
    expect(QApplication::palette().color(QPalette::Link).isValid(), "the palette is the skin's");
    expect(!application.styleSheet().isEmpty(), "the style sheet is the skin's");

    // Built where Qt's tools for translations are installed.
    const QString german = arguments.value(1) + QStringLiteral("/../translations/ombringui_de.qm");
    expect(!QFile::exists(german) || ombrin::OmTranslation::load(QLocale(QStringLiteral("de"))),
           "the translations are those of the installation");

    for (const QString &plugin : arguments.mid(2)) {
        QPluginLoader loader(plugin);
        expect(loader.instance(),
               qPrintable(plugin + QStringLiteral(" loads: ") + loader.errorString()));
    }
    return succeeded() ? 0 : 1;
}
