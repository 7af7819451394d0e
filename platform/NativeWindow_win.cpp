#include "platform/NativeWindow_win.h"

namespace ombrin::NativeWindow {

namespace {

constexpr LONG systemBoxes = WS_SYSMENU | WS_MINIMIZEBOX | WS_MAXIMIZEBOX;
constexpr UINT keepPlaceAndSize = SWP_NOSIZE | SWP_NOMOVE;

// Null for what is not, or no longer, a window.
HWND existingWindow(Handle handle)
{
    const auto window = reinterpret_cast<HWND>(handle);
    return IsWindow(window) ? window : nullptr;
}

void changeBits(HWND window, int index, LONG bits, bool on)
{
    const LONG value = GetWindowLongW(window, index);
    SetWindowLongW(window, index, on ? value | bits : value & ~bits);
}

} // namespace

void addSystemBoxes(Handle handle)
{
    if (const HWND window = existingWindow(handle))
        changeBits(window, GWL_STYLE, systemBoxes, true);
}

void setMaximizeBox(Handle handle, bool on)
{
    if (const HWND window = existingWindow(handle))
        changeBits(window, GWL_STYLE, WS_MAXIMIZEBOX, on);
}

void setStayOnTop(Handle handle, bool on)
{
    const HWND window = existingWindow(handle);
    if (!window)
        return;
    changeBits(window, GWL_EXSTYLE, WS_EX_TOPMOST, on);
    // The system does not take this bit from SetWindowLongW: it goes with the window's place among
    // the others.
    SetWindowPos(window, on ? HWND_TOPMOST : HWND_NOTOPMOST, 0, 0, 0, 0,
                 keepPlaceAndSize | SWP_NOACTIVATE);
}

void bringToFront(Handle handle)
{
    const HWND window = existingWindow(handle);
    if (!window)
        return;
    SetWindowPos(window, HWND_TOPMOST, 0, 0, 0, 0, keepPlaceAndSize);
    SetWindowPos(window, HWND_NOTOPMOST, 0, 0, 0, 0, keepPlaceAndSize);
}

FLASHWINFO flashRequest(HWND window)
{
    FLASHWINFO request = {};
    request.cbSize = sizeof(request);
    request.hwnd = window;
    request.dwFlags = FLASHW_ALL;
    request.uCount = 3;
    request.dwTimeout = 0; // as fast as the text cursor blinks
    return request;
}

void flash(Handle handle)
{
    const HWND window = existingWindow(handle);
    if (!window)
        return;
    FLASHWINFO request = flashRequest(window);
    FlashWindowEx(&request);
}

bool isLeftButtonHeld()
{
    // The question is for the device's buttons, which a left-handed user may have swapped.
    const int button = GetSystemMetrics(SM_SWAPBUTTON) != 0 ? VK_RBUTTON : VK_LBUTTON;
    return GetAsyncKeyState(button) < 0;
}

bool answerMaximumSize(void *message, int width, int height)
{
    const auto *native = static_cast<const MSG *>(message);
    if (!native || native->message != WM_GETMINMAXINFO || !native->lParam)
        return false;
    auto *limits = reinterpret_cast<MINMAXINFO *>(native->lParam);
    limits->ptMaxSize.x = width;
    limits->ptMaxSize.y = height;
    return true;
}

} // namespace ombrin::NativeWindow
