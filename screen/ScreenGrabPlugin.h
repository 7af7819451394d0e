#pragma once

#include <QtCore/QtPlugin>
#include <QtGui/QImage>

#include <functional>

namespace ombrin {

/// A plug-in that asks the system for a picture of the desktop where it cannot be grabbed. A
/// library of its own, because what it needs for that (Qt D-Bus) the widget library does not.
class ScreenGrabPlugin
{
public:
    ScreenGrabPlugin() = default;
    virtual ~ScreenGrabPlugin() = default;
    Q_DISABLE_COPY(ScreenGrabPlugin)

    /// Calls \a done once, now or later, with a null image when there is none.
    virtual void grab(const std::function<void(const QImage &)> &done) = 0;

    /// The plug-in in the folder "ombrin" of one of QCoreApplication::libraryPaths(), or of the
    /// plug-ins installed with the library, or null.
    static ScreenGrabPlugin *load();
};

} // namespace ombrin

#define OMBRIN_SCREEN_GRAB_IID "org.ombrin.ScreenGrab/1"
Q_DECLARE_INTERFACE(ombrin::ScreenGrabPlugin, OMBRIN_SCREEN_GRAB_IID)
