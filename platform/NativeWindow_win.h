#pragma once

#include "platform/NativeWindow.h"

#ifndef NOMINMAX
#define NOMINMAX
#endif
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#include <windows.h>

namespace ombrin::NativeWindow {

/// What flash() asks the system for.
OMBRIN_AUTOTEST_EXPORT FLASHWINFO flashRequest(HWND window);

} // namespace ombrin::NativeWindow
