#include <ombrin/OmPushButton.h>

#include "widgets/BalloonToolTip.h"

#include <ombrin/OmBalloonTip.h>

namespace ombrin {

OmPushButton::OmPushButton(QWidget *parent)
    : QPushButton(parent)
{}

OmPushButton::~OmPushButton() = default;

bool OmPushButton::event(QEvent *event)
{
    return balloonToolTip(this, event) || QPushButton::event(event);
}

void OmPushButton::leaveEvent(QEvent *event)
{
    OmBalloonTip::hideBalloon();
    QPushButton::leaveEvent(event);
}

} // namespace ombrin
