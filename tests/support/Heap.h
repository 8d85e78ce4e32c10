// How much memory is in use.
#pragma once

#include <QPixmapCache>
#include <cstddef>

#if defined(__SANITIZE_ADDRESS__)
// Its header comes with another package.
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();  // NOLINT(bugprone-reserved-identifier)
#elif defined(__GLIBC__)
#include <malloc.h>
#endif

namespace sorvane::test {

// Whether everything takes several times as long as it would.
#if defined(__SANITIZE_ADDRESS__)
inline constexpr bool Sanitized = true;
#else
inline constexpr bool Sanitized = false;
#endif

// Bytes that were asked for and not given back; 0 where nobody can tell. Qt's own store of painted pieces,
// which fills up to a size of its own, is emptied first.
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
