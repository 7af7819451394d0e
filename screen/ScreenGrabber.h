#pragma once

#include "screen/DesktopPicture.h"

#include <functional>

class QObject;
class QScreen;

/// \file
/// How pictures of the desktop are taken.

namespace ombrin {

/// What every screen shows now, or a null picture where the system does not tell.
OMBRIN_AUTOTEST_EXPORT DesktopPicture grabDesktop();

/// The same where the system tells only those whom the user has allowed to know. Calls \a done
/// once, now or later, with a null picture when there is none; not at all when \a context is gone.
OMBRIN_AUTOTEST_EXPORT void askForDesktop(QObject *context,
                                          const std::function<void(const DesktopPicture &)> &done);

using ScreenGrab = std::function<QPixmap(QScreen *)>;
/// Takes pictures with \a grab from now on; with null as by default. For tests.
OMBRIN_AUTOTEST_EXPORT void setScreenGrab(const ScreenGrab &grab);

} // namespace ombrin
