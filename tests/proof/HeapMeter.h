#pragma once

#include <QtCore/QtGlobal>

#include <cstddef>
#include <malloc.h>

#if defined(__SANITIZE_ADDRESS__)
// Of the sanitizer's run-time library, whose headers g++ does not bring.
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
#endif

namespace ombrin::test {

#if defined(__SANITIZE_ADDRESS__)
constexpr bool kIsSanitized = true;
#else
constexpr bool kIsSanitized = false;
#endif

/// The bytes that the program has allocated and not given back.
inline qint64 heapBytes()
{
#if defined(__SANITIZE_ADDRESS__)
    return static_cast<qint64>(__sanitizer_get_current_allocated_bytes());
#else
    const struct mallinfo2 info = mallinfo2();
    return static_cast<qint64>(info.uordblks + info.hblkhd);
#endif
}

} // namespace ombrin::test
