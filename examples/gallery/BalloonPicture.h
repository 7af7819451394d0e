#pragma once

#include <ombrin/OmBalloonTip.h>

class QWidget;

namespace gallery {

/// What is in a balloon, and where its arrow stands.
struct BalloonContents
{
    ombrin::MessageIcon icon = ombrin::NoMessageIcon;
    QString title;
    QString message;
    bool showArrow = true;
    bool showCloseButton = false;
    bool arrowAtTop = true;
    bool arrowAtLeft = true;
};

/// A balloon as a part of a page: a picture of one that was laid out but never shown.
QWidget *balloonPicture(const BalloonContents &contents);

} // namespace gallery
