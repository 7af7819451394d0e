#include "effects/PopupPlacement.h"

#include "effects/BalloonGeometry.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>

#include <algorithm>

namespace ombrin::popup_placement {

namespace {

// In one direction: moved back to \a last, the end of the screen, but never beyond \a first.
int movedInside(int position, int size, int first, int last)
{
    return std::max(first, std::min(position, last + 1 - size));
}

} // namespace

QRect screenAt(const QPoint &position)
{
    QVector<QRect> screens;
    const QList<QScreen *> all = QGuiApplication::screens();
    for (const QScreen *screen : all)
        screens.append(screen->geometry());
    const int index = balloon_geometry::screenAt(screens, position);
    return index < 0 ? QRect() : screens.at(index);
}

QPoint flipped(const QPoint &anchor, const QSize &owner, const QSize &size, const QRect &screen)
{
    QPoint topLeft = anchor;
    if (anchor.x() + size.width() > screen.right() + 1)
        topLeft.rx() += owner.width() - size.width();
    if (anchor.y() + size.height() > screen.bottom() + 1)
        topLeft.ry() += owner.height() - size.height();
    return movedInside(topLeft, size, screen);
}

QPoint movedInside(const QPoint &topLeft, const QSize &size, const QRect &screen)
{
    return {movedInside(topLeft.x(), size.width(), screen.left(), screen.right()),
            movedInside(topLeft.y(), size.height(), screen.top(), screen.bottom())};
}

} // namespace ombrin::popup_placement
