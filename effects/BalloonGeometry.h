#pragma once

#include <ombrin/OmGlobal.h>

#include <QtCore/QMargins>
#include <QtCore/QRect>
#include <QtCore/QVector>
#include <QtGui/QPainterPath>

/// Shape and place of a balloon, free of widgets.
///
/// A balloon is a bubble with rounded corners and a strip of kArrowHeight pixels above or below it
/// for the arrow. The arrow stands near one of the bubble's corners and points at a position on
/// the screen.
namespace ombrin::balloon_geometry {

constexpr int kArrowHeight = 18;
constexpr int kArrowWidth = 18;
/// From the side of the bubble to the arrow's tip.
constexpr int kArrowOffset = 18;
constexpr int kCornerRadius = 7;
/// What stays free between a bubble and the left or right edge of the screen.
constexpr int kScreenGap = 2;

/// The corner of the bubble at which the arrow stands.
struct ArrowCorner
{
    bool atTop = true;
    bool atLeft = true;
};

inline bool operator==(ArrowCorner a, ArrowCorner b)
{
    return a.atTop == b.atTop && a.atLeft == b.atLeft;
}

/// The index of the screen that \a position is on, else of the nearest one; -1 without screens.
OMBRIN_AUTOTEST_EXPORT int screenAt(const QVector<QRect> &screens, const QPoint &position);

/// The corner for a balloon that points at \a position on \a screen and whose contents, with a
/// narrow margin, need \a contents.
///
/// The arrow stands at the top left if the balloon then ends within the width and height of the
/// screen, both counted from the origin of the desktop; else at the right, or at the bottom. Only
/// where this would take the balloon off its screen, as can happen on one away from the origin, are
/// width and height counted from the screen's own corner.
OMBRIN_AUTOTEST_EXPORT ArrowCorner arrowCorner(const QPoint &position, const QSize &contents,
                                               const QRect &screen);

/// The margins that the strip of the arrow and the bubble's border ask for.
OMBRIN_AUTOTEST_EXPORT QMargins margins(ArrowCorner corner);

/// Where the top left corner of a balloon of \a size goes, so that the tip of its arrow is at
/// \a position. Near the left or right edge of \a screen the balloon stays kScreenGap away from it,
/// and the arrow points beside \a position.
OMBRIN_AUTOTEST_EXPORT QPoint topLeft(const QPoint &position, const QSize &size, ArrowCorner corner,
                                      const QRect &screen);

/// The outline of a balloon of \a size, with the arrow's strip and with or without the arrow. It
/// runs through the outermost pixels.
OMBRIN_AUTOTEST_EXPORT QPainterPath outline(const QSize &size, ArrowCorner corner, bool showArrow);

/// The width below which the arrow does not fit between the corners.
OMBRIN_AUTOTEST_EXPORT int narrowestWidth(bool showArrow);

/// The size that a balloon which points at \a position can have without leaving \a screen.
OMBRIN_AUTOTEST_EXPORT QSize room(const QPoint &position, const QRect &screen);

} // namespace ombrin::balloon_geometry
