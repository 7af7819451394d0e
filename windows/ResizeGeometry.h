#pragma once

#include <ombrin/OmGlobal.h>

#include <QtCore/QRect>
#include <QtCore/Qt>

/// Geometry of moving and resizing by mouse, free of widgets.
namespace ombrin::resize_geometry {

/// The edges of a window of \a size within \a border pixels of \a position (window coordinates):
/// none inside or outside, two at a corner.
OMBRIN_AUTOTEST_EXPORT Qt::Edges edgesAt(const QPoint &position, const QSize &size, int border);

/// The pointer shape over \a edges: the arrow over none.
OMBRIN_AUTOTEST_EXPORT Qt::CursorShape cursorAt(Qt::Edges edges);

/// \a start with \a edges dragged by \a delta, kept between \a minimum and \a maximum. The edges
/// that are not dragged stay where they are.
OMBRIN_AUTOTEST_EXPORT QRect resized(const QRect &start, Qt::Edges edges, const QPoint &delta,
                                     const QSize &minimum, const QSize &maximum);

} // namespace ombrin::resize_geometry
