#pragma once

#include "screen/ScreenGrabPlugin.h"

#include <QtCore/QObject>

namespace ombrin {

/// Asks the desktop portal's screenshot service.
class PortalScreenGrab : public QObject, public ScreenGrabPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID OMBRIN_SCREEN_GRAB_IID)
    Q_INTERFACES(ombrin::ScreenGrabPlugin)

public:
    void grab(const std::function<void(const QImage &)> &done) override;
};

} // namespace ombrin
