#pragma once

#include <ombrin/OmGlobal.h>

#include <QtCore/QRect>

/// Where pop-up windows go, in coordinates of the virtual desktop: screens left of and above the
/// first one have negative coordinates.
namespace ombrin::popup_placement {

/// The geometry of the screen that \a position is on, else of the nearest one.
OMBRIN_AUTOTEST_EXPORT QRect screenAt(const QPoint &position);

/// The top left corner for a pop-up of \a size that is wanted at \a anchor by a widget of
/// \a owner's size.
///
/// Where the pop-up would run past the right edge of \a screen it goes to the left by as much as it
/// is wider than its owner; likewise at the bottom edge. If it is still not wholly on the screen it
/// is moved there.
OMBRIN_AUTOTEST_EXPORT QPoint flipped(const QPoint &anchor, const QSize &owner, const QSize &size,
                                      const QRect &screen);

/// The top left corner nearest to \a topLeft with which a window of \a size is wholly on \a screen.
/// A window that is too large shows its left and upper parts.
OMBRIN_AUTOTEST_EXPORT QPoint movedInside(const QPoint &topLeft, const QSize &size,
                                          const QRect &screen);

} // namespace ombrin::popup_placement
