#include "platform/NativeWindow_win.h"

// Nothing here is kept per thread, so the host's threads need not tell us when they start and end.
extern "C" BOOL WINAPI DllMain(HINSTANCE library, DWORD reason, LPVOID)
{
    if (reason == DLL_PROCESS_ATTACH)
        DisableThreadLibraryCalls(library);
    return TRUE;
}
