#pragma once

#include <QtWidgets/QWidget>

class OmScreenShooter_FullscreenCutter;

namespace ombrin {

/// The part of a cutter that covers another screen than the cutter itself does. All it does is show
/// the cutter's picture there and pass on what the mouse does.
class CutterPane : public QWidget
{
public:
    CutterPane(OmScreenShooter_FullscreenCutter *cutter, QScreen *screen);

protected:
    bool event(QEvent *event) override;

private:
    OmScreenShooter_FullscreenCutter *m_cutter;
};

} // namespace ombrin
