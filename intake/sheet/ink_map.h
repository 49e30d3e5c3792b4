#pragma once

#include <cstddef>
#include <vector>

#include "intake/sheet/dot_rectangle.h"

namespace intake::sheet {

/// A page as it is seen, in levels of grey of 8 bits, 255 for bare paper.
struct GreyPage {
    const unsigned char* dots = nullptr;
    int width = 0;              ///< dots
    int height = 0;             ///<
    std::ptrdiff_t stride = 0;  ///< bytes from one row to the next
    double dotsPerPoint = 1;    ///<
};

/// Where ink is on a page, and how much of it is in any rectangle, in constant time: a summed-area
/// table (Crow 1984).
class InkMap {
public:
    explicit InkMap(const GreyPage& page);

    int width() const { return width_; }
    int height() const { return height_; }
    /// Of a dot that is on the page.
    bool has(int x, int y) const {
        return sum(x + 1, y + 1) - sum(x, y + 1) != sum(x + 1, y) - sum(x, y);
    }
    /// The dots of ink in what of the rectangle is on the page.
    int count(const DotRectangle& rectangle) const;
    /// The smallest rectangle around the ink that is in a rectangle of the page, empty without any.
    DotRectangle extent(const DotRectangle& rectangle) const;

private:
    int sum(int x, int y) const {
        return sums_[static_cast<std::size_t>(y) * stride_ + static_cast<std::size_t>(x)];
    }

    int width_;
    int height_;
    std::size_t stride_;
    std::vector<int> sums_;
};

}  // namespace intake::sheet
