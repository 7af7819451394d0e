#include "effects/BalloonGeometry.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace ombrin::balloon_geometry {

namespace {

constexpr int kBorderWidth = 1;
constexpr int kSideMargin = 3;
constexpr int kEndMargin = 2;

// How far \a value lies outside of first to last.
qint64 distance(int value, int first, int last)
{
    if (value < first)
        return qint64(first) - value;
    return value > last ? qint64(value) - last : 0;
}

ArrowCorner cornerFor(const QPoint &position, const QSize &contents, const QSize &screen)
{
    return {position.y() + contents.height() + kArrowHeight < screen.height(),
            position.x() + contents.width() - kArrowOffset < screen.width()};
}

// The bubble without the strip of the arrow. Right and bottom are its outermost pixels.
QRect bubble(const QSize &size, ArrowCorner corner)
{
    const QRect balloon(QPoint(0, 0), size);
    return corner.atTop ? balloon.adjusted(0, kArrowHeight, 0, 0)
                        : balloon.adjusted(0, 0, 0, -kArrowHeight);
}

// From one foot of the arrow over its tip to the other, in the direction of the outline.
void addArrow(QPainterPath *path, const QRect &bubble, ArrowCorner corner)
{
    const int side = corner.atLeft ? bubble.left() : bubble.right();
    const int inward = corner.atLeft ? 1 : -1;
    const int y = corner.atTop ? bubble.top() : bubble.bottom();
    const int upright = side + inward * kArrowOffset; // the foot right below or above the tip
    const QPoint tip(upright, corner.atTop ? y - kArrowHeight : y + kArrowHeight);
    QPoint first(upright, y);
    QPoint last(upright + inward * kArrowWidth, y);
    if (corner.atTop != corner.atLeft)
        std::swap(first, last);
    path->lineTo(first);
    path->lineTo(tip);
    path->lineTo(last);
}

} // namespace

int screenAt(const QVector<QRect> &screens, const QPoint &position)
{
    int nearest = -1;
    qint64 shortest = std::numeric_limits<qint64>::max();
    for (int i = 0; i < int(screens.size()); ++i) {
        const QRect &screen = screens.at(i);
        const qint64 away = distance(position.x(), screen.left(), screen.right())
                            + distance(position.y(), screen.top(), screen.bottom());
        if (away < shortest) {
            shortest = away;
            nearest = i;
        }
    }
    return nearest;
}

ArrowCorner arrowCorner(const QPoint &position, const QSize &contents, const QRect &screen)
{
    const ArrowCorner corner = cornerFor(position, contents, screen.size());
    const QSize size = contents.grownBy(margins(corner));
    if (screen.contains(QRect(topLeft(position, size, corner, screen), size)))
        return corner;
    return cornerFor(position - screen.topLeft(), contents, screen.size());
}

QMargins margins(ArrowCorner corner)
{
    constexpr int side = kBorderWidth + kSideMargin;
    constexpr int end = kBorderWidth + kEndMargin;
    return {side, end + (corner.atTop ? kArrowHeight : 0), side,
            end + (corner.atTop ? 0 : kArrowHeight)};
}

QPoint topLeft(const QPoint &position, const QSize &size, ArrowCorner corner, const QRect &screen)
{
    const int x = corner.atLeft ? std::max(position.x() - kArrowOffset, screen.left() + kScreenGap)
                                : std::min(position.x() - size.width() + kArrowOffset,
                                           screen.right() - size.width() - kScreenGap);
    return {x, corner.atTop ? position.y() : position.y() - size.height()};
}

QPainterPath outline(const QSize &size, ArrowCorner corner, bool showArrow)
{
    constexpr int radius = kCornerRadius;
    constexpr int square = 2 * kCornerRadius;
    const QRect r = bubble(size, corner);

    QPainterPath path;
    path.moveTo(r.left() + radius, r.top());
    if (showArrow && corner.atTop)
        addArrow(&path, r, corner);
    path.lineTo(r.right() - radius, r.top());
    path.arcTo(r.right() - square, r.top(), square, square, 90, -90);
    path.lineTo(r.right(), r.bottom() - radius);
    path.arcTo(r.right() - square, r.bottom() - square, square, square, 0, -90);
    if (showArrow && !corner.atTop)
        addArrow(&path, r, corner);
    path.lineTo(r.left() + radius, r.bottom());
    path.arcTo(r.left(), r.bottom() - square, square, square, -90, -90);
    path.lineTo(r.left(), r.top() + radius);
    path.arcTo(r.left(), r.top(), square, square, 180, -90);
    return path;
}

int narrowestWidth(bool showArrow)
{
    return (showArrow ? kArrowOffset + kArrowWidth : kCornerRadius) + kCornerRadius + 1;
}

QSize room(const QPoint &position, const QRect &screen)
{
    const int toTheLeft = position.x() + kArrowOffset - screen.left();
    const int toTheRight = screen.right() - position.x() + kArrowOffset;
    const int above = position.y() - screen.top();
    const int below = screen.bottom() - position.y();
    const int width = std::min(std::max(toTheLeft, toTheRight), screen.width() - kScreenGap);
    return {std::max(width - kScreenGap, 0), std::max({above, below, 0})};
}

} // namespace ombrin::balloon_geometry
