#pragma once

#include <QtCore/QStringList>
#include <QtGui/QIcon>
#include <QtGui/QPixmap>

namespace example {

/// The skin's picture \a name (without ":/") in all its densities.
QIcon skinIcon(const QString &name);
/// The skin's picture \a name (without ":/") at the density of the screen; null if there is none.
QPixmap skinPicture(const QString &name);

/// A picture for the side of a wizard: the list of \a steps with the one at \a current marked,
/// white on blue, in a logical size of \a size.
QPixmap stepSidebar(const QStringList &steps, int current, const QSize &size);

} // namespace example
