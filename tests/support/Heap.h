// How much memory is in use.
#pragma once

#include <QPixmapCache>
#include <cstddef>

#if defined(__SANITIZE_ADDRESS__)
// Declared here because its header is in another package.
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();  // NOLINT(bugprone-reserved-identifier)
#elif defined(__GLIBC__)
#include <malloc.h>
#endif

namespace sorvane::test {

// Whether the sanitizers slow everything down several times.
#if defined(__SANITIZE_ADDRESS__)
inline constexpr bool Sanitized = true;
#else
inline constexpr bool Sanitized = false;
#endif

// Bytes allocated and not yet freed; 0 where they are not counted. Empties Qt's cache of pixmaps first,
// because it grows up to a limit of its own.
inline std::size_t HeapInUse() {
    QPixmapCache::clear();
#if defined(__SANITIZE_ADDRESS__)
    return __sanitizer_get_current_allocated_bytes();
#elif defined(__GLIBC__)
    const auto heap = mallinfo2();
    return heap.uordblks + heap.hblkhd;
#else
    return 0;
#endif
}

}  // namespace sorvane::test
