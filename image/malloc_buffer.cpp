#include "image/malloc_buffer.h"

#include <sys/mman.h>

#include <cstdint>

// No more than advice: a system that does not take it, or has no large page left, gives small ones.
void preferLargePages(void* block, std::size_t size) {
#ifdef MADV_HUGEPAGE
    constexpr std::uintptr_t largePage = std::uintptr_t{2} << 20U;
    const auto first = reinterpret_cast<std::uintptr_t>(block);
    const std::uintptr_t begin = (first + largePage - 1) / largePage * largePage;
    const std::uintptr_t end = (first + size) / largePage * largePage;
    if (block != nullptr && begin < end) {
        madvise(static_cast<unsigned char*>(block) + (begin - first), end - begin, MADV_HUGEPAGE);
    }
#else
    static_cast<void>(block);
    static_cast<void>(size);
#endif
}
