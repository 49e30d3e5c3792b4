#include "driver/blank_lines.h"

#include <algorithm>

namespace {

std::size_t examinedBytes(std::size_t width, std::size_t skipRight) {
    return skipRight > width ? width : width - skipRight;
}

bool isBlank(const unsigned char* row, std::size_t bytes) {
    return std::all_of(row, row + bytes, [](unsigned char pixel) { return pixel == 0; });
}

}  // namespace

std::size_t kestoImageCountBlankLinesFromFront(const unsigned char* image, std::size_t width,
                                               std::size_t height, std::size_t skipRight,
                                               std::size_t stride) {
    const std::size_t bytes = examinedBytes(width, skipRight);
    for (std::size_t i = 0; i + 1 < height; ++i) {
        if (!isBlank(image + (i + 1) * stride, bytes)) {
            return i;
        }
    }
    return height;
}

std::size_t kestoImageCountBlankLinesFromBack(const unsigned char* image, std::size_t width,
                                              std::size_t height, std::size_t skipRight,
                                              std::size_t stride) {
    const std::size_t bytes = examinedBytes(width, skipRight);
    for (std::size_t i = height; i > 0; --i) {
        if (!isBlank(image + (i - 1) * stride, bytes)) {
            return i;
        }
    }
    return 0;
}
