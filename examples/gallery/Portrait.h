#pragma once

#include <QtGui/QPixmap>

namespace gallery {

/// A picture such as people give themselves; each \a person has colours of their own.
QPixmap portrait(int person, const QSize &size);

} // namespace gallery
