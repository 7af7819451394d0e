#include <ombrin/OmScreenShooter.h>

#include "screen/ScreenGrabber.h"

#include <ombrin/OmScreenShooter_Private.h>

namespace {

void shoot(unsigned int delay, bool showNowButton, bool cutMode, QObject *succeededReceiver,
           const char *succeededSlot, QObject *failedReceiver, const char *failedSlot)
{
    // Deletes itself when it has reported.
    auto *request = new OmScreenShooter_Private(delay, showNowButton, cutMode);
    if (succeededReceiver && succeededSlot)
        QObject::connect(request, SIGNAL(signalOnScreenshotSucceeded(QPixmap)), succeededReceiver,
                         succeededSlot);
    if (failedReceiver && failedSlot)
        QObject::connect(request, SIGNAL(signalOnScreenshotFailed()), failedReceiver, failedSlot);
}

} // namespace

OmScreenShooter::OmScreenShooter() = default;

OmScreenShooter::~OmScreenShooter() = default;

QPixmap OmScreenShooter::shootSimple()
{
    return ombrin::grabDesktop().whole();
}

void OmScreenShooter::shootDelayed(unsigned int delay, bool showNowButton,
                                   QObject *succeededReceiver, const char *succeededSlot,
                                   QObject *failedReceiver, const char *failedSlot)
{
    shoot(delay, showNowButton, false, succeededReceiver, succeededSlot, failedReceiver,
          failedSlot);
}

void OmScreenShooter::shootUserCutted(unsigned int delay, bool showNowButton,
                                      QObject *succeededReceiver, const char *succeededSlot,
                                      QObject *failedReceiver, const char *failedSlot)
{
    shoot(delay, showNowButton, true, succeededReceiver, succeededSlot, failedReceiver, failedSlot);
}
