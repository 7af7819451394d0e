#include "screen/ScreenGrabber.h"

#include "screen/ScreenGrabPlugin.h"

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>

namespace ombrin {

namespace {

ScreenGrab &replacedGrab()
{
    static ScreenGrab grab;
    return grab;
}

/// Under Wayland an X client may grab the screen, but all it gets is black.
bool seesOnlyBlack()
{
    return QGuiApplication::platformName() == QLatin1String("xcb")
           && qgetenv("XDG_SESSION_TYPE") == "wayland";
}

QPixmap grabScreen(QScreen *screen)
{
    return seesOnlyBlack() ? QPixmap() : screen->grabWindow(0);
}

QRect desktopGeometry()
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    return screen ? screen->virtualGeometry() : QRect();
}

} // namespace

DesktopPicture grabDesktop()
{
    const ScreenGrab grab = replacedGrab() ? replacedGrab() : grabScreen;
    QVector<DesktopPicture::Screen> pictures;
    const auto screens = QGuiApplication::screens();
    for (QScreen *screen : screens)
        pictures.append({screen->geometry(), grab(screen)});
    return DesktopPicture(pictures);
}

void askForDesktop(QObject *context, const std::function<void(const DesktopPicture &)> &done)
{
    ScreenGrabPlugin *plugin = ScreenGrabPlugin::load();
    if (!plugin) {
        done(DesktopPicture());
        return;
    }
    plugin->grab([done, guard = QPointer<QObject>(context)](const QImage &image) {
        if (!guard)
            return;
        // One picture of everything, in the pixels of the densest screen.
        if (image.isNull())
            done(DesktopPicture());
        else
            done(DesktopPicture({{desktopGeometry(), QPixmap::fromImage(image)}}));
    });
}

void setScreenGrab(const ScreenGrab &grab)
{
    replacedGrab() = grab;
}

} // namespace ombrin
