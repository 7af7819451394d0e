#include "platform/LibraryFile.h"

#include "platform/NativeWindow_win.h"

#include <array>

namespace ombrin {

QString libraryFile()
{
    // Any address of the library will do.
    static const char inLibrary = 0;
    HMODULE library = nullptr;
    if (!GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS
                                    | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                            reinterpret_cast<LPCWSTR>(&inLibrary), &library))
        return QString();
    std::array<wchar_t, 32768> name{}; // the longest a path can be
    const DWORD length = GetModuleFileNameW(library, name.data(), static_cast<DWORD>(name.size()));
    return QString::fromWCharArray(name.data(), static_cast<int>(length));
}

} // namespace ombrin
