#include "widgets/BalloonToolTip.h"

#include <ombrin/OmBalloonTip.h>

#include <QtCore/QEvent>

namespace ombrin {

namespace {

constexpr int kTimeoutMs = 2000;

} // namespace

bool balloonToolTip(QWidget *button, const QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return false;
    if (!button->isEnabled() || OmBalloonTip::isActive())
        return true;
    if (button->toolTip().isEmpty())
        return false;
    const QPoint below(button->width() / 2, button->height());
    OmBalloonTip::showBalloon(NoMessageIcon, QString(), button->toolTip(),
                              button->mapToGlobal(below), kTimeoutMs, true, false, false);
    return true;
}

} // namespace ombrin
