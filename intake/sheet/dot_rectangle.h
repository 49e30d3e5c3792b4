#pragma once

#include <algorithm>
#include <cstdint>

namespace intake::sheet {

/// Columns and rows of dots from the first up to, not including, the last; from the upper left
/// corner of a page.
struct DotRectangle {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    int width() const { return right - left; }
    int height() const { return bottom - top; }
    bool isEmpty() const { return left >= right || top >= bottom; }
    std::int64_t area() const { return isEmpty() ? 0 : std::int64_t{width()} * height(); }
    friend bool operator==(const DotRectangle&, const DotRectangle&) = default;
};

/// What two rectangles have in common.
inline DotRectangle common(const DotRectangle& a, const DotRectangle& b) {
    return {std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
            std::min(a.bottom, b.bottom)};
}

}  // namespace intake::sheet
