#include "intake/sheet/ink_map.h"

#include <algorithm>

namespace intake::sheet {
namespace {

// What is lighter is the noise of pictures that were compressed, and prints as nothing.
constexpr unsigned char sLightestInk = 247;

}  // namespace

InkMap::InkMap(const GreyPage& page)
    : width_(page.width),
      height_(page.height),
      stride_(static_cast<std::size_t>(page.width) + 1),
      sums_(stride_ * (static_cast<std::size_t>(page.height) + 1)) {
    for (int y = 0; y < height_; ++y) {
        const unsigned char* const row = page.dots + y * page.stride;
        const int* const above = sums_.data() + static_cast<std::size_t>(y) * stride_;
        int* const sums = sums_.data() + (static_cast<std::size_t>(y) + 1) * stride_;
        int inRow = 0;
        for (int x = 0; x < width_; ++x) {
            inRow += row[x] <= sLightestInk ? 1 : 0;
            sums[x + 1] = above[x + 1] + inRow;
        }
    }
}

int InkMap::count(const DotRectangle& rectangle) const {
    const DotRectangle part = common(rectangle, {0, 0, width_, height_});
    if (part.isEmpty()) {
        return 0;
    }
    return sum(part.right, part.bottom) - sum(part.left, part.bottom) - sum(part.right, part.top) +
           sum(part.left, part.top);
}

DotRectangle InkMap::extent(const DotRectangle& rectangle) const {
    DotRectangle part = common(rectangle, {0, 0, width_, height_});
    if (count(part) == 0) {
        return {};
    }
    while (count({part.left, part.top, part.left + 1, part.bottom}) == 0) {
        ++part.left;
    }
    while (count({part.right - 1, part.top, part.right, part.bottom}) == 0) {
        --part.right;
    }
    while (count({part.left, part.top, part.right, part.top + 1}) == 0) {
        ++part.top;
    }
    while (count({part.left, part.bottom - 1, part.right, part.bottom}) == 0) {
        --part.bottom;
    }
    return part;
}

}  // namespace intake::sheet
