#include "BalloonPicture.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>
#include <QtWidgets/QLabel>

#include <memory>

namespace gallery {

namespace {

// From the screen's edge, so that a balloon has room on one side only.
constexpr int kDistance = 30;

QPoint positionFor(const BalloonContents &contents)
{
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    return {contents.arrowAtLeft ? screen.left() + kDistance : screen.right() - kDistance,
            contents.arrowAtTop ? screen.top() + kDistance : screen.bottom() - kDistance};
}

} // namespace

QWidget *balloonPicture(const BalloonContents &contents)
{
    auto *const tip = new ombrin::OmBalloonTip(contents.icon, contents.title, contents.message,
                                               !contents.title.isEmpty(), contents.showCloseButton);
    tip->setAttribute(Qt::WA_DontShowOnScreen);
    tip->balloon(positionFor(contents), 0, contents.showArrow);

    const qreal density = tip->devicePixelRatioF();
    QPixmap picture(tip->size() * density);
    picture.setDevicePixelRatio(density);
    picture.fill(Qt::transparent);
    const QRegion shape = tip->mask();
    tip->render(&picture, shape.boundingRect().topLeft(), shape);
    tip->close();

    auto *const label = new QLabel;
    label->setPixmap(picture);
    label->setFixedSize(tip->size());
    return label;
}

} // namespace gallery
