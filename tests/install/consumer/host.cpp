// A host: shows a skinned window and looks whether the skin is there.
//
//   host SKIN-FOLDER [PLUG-IN...]

#include <ombrin/OmSkin.h>
#include <ombrin/OmVersion.h>
#include <ombrin/OmWindow.h>

#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QPluginLoader>

namespace {

bool succeeded = true;

void expect(bool condition, const char *what)
{
    if (!condition)
        qWarning("not so: %s", what);
    succeeded = succeeded && condition;
}

} // namespace

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

    for (const QString &plugin : arguments.mid(2)) {
        QPluginLoader loader(plugin);
        expect(loader.instance(),
               qPrintable(plugin + QStringLiteral(" loads: ") + loader.errorString()));
    }
    return succeeded ? 0 : 1;
}
