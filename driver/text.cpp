#include "driver/text.h"

#include <algorithm>
#include <cstring>
#include <string_view>

extern "C" const char* kestoPathGetBasename(const char* path) {
    if (path == nullptr) {
        return nullptr;
    }
    const std::size_t separator = std::string_view(path).find_last_of("/\\");
    return separator == std::string_view::npos ? path : path + separator + 1;
}

extern "C" char* kestoStrCpy(char* dst, const char* src, std::size_t len) {
    const std::size_t kept = strnlen(src, len - 1);
    std::fill(std::copy_n(src, kept, dst), dst + len, '\0');
    return dst;
}
