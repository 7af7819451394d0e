#include <ombrin/OmToolButton.h>

#include "widgets/BalloonToolTip.h"

#include <ombrin/OmBalloonTip.h>

namespace ombrin {

OmToolButton::OmToolButton(QWidget *parent)
    : QToolButton(parent)
{}

OmToolButton::~OmToolButton() = default;

bool OmToolButton::event(QEvent *event)
{
    return balloonToolTip(this, event) || QToolButton::event(event);
}

void OmToolButton::leaveEvent(QEvent *event)
{
    OmBalloonTip::hideBalloon();
    QToolButton::leaveEvent(event);
}

} // namespace ombrin
