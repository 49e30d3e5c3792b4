#include "tests/reference/blank_rows.h"

namespace reference {

namespace {

bool isBlankRow(const Bytes& page, const BlankArea& area, std::size_t row) {
    if (row >= area.height) {
        return true;
    }
    const std::size_t skip = area.skipRight > area.width ? 0 : area.skipRight;
    for (std::size_t x = 0; x < area.width - skip; ++x) {
        if (page[row * area.stride + x] != 0) {
            return false;
        }
    }
    return true;
}

}  // namespace

std::size_t blankRowsFromFront(const Bytes& page, const BlankArea& area) {
    for (std::size_t i = 0; i < area.height; ++i) {
        if (!isBlankRow(page, area, i + 1)) {
            return i;
        }
    }
    return area.height;
}

std::size_t blankRowsFromBack(const Bytes& page, const BlankArea& area) {
    for (std::size_t i = area.height; i > 0; --i) {
        if (!isBlankRow(page, area, i - 1)) {
            return i;
        }
    }
    return 0;
}

}  // namespace reference
