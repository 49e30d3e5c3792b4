#pragma once

#include <cstddef>
#include <vector>

#include "intake/sheet/ink_map.h"

namespace intake::sheet {

/// A page of bare paper to draw on, a dot to a point.
class Drawing {
public:
    Drawing(int width, int height)
        : width_(width),
          height_(height),
          dots_(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), 255) {}

    void fill(const DotRectangle& part, unsigned char level = 0) {
        for (int y = part.top; y < part.bottom; ++y) {
            for (int x = part.left; x < part.right; ++x) {
                dots_[static_cast<std::size_t>(y * width_ + x)] = level;
            }
        }
    }

    /// The four sides of a rectangle, a dot thick, within it.
    void frame(const DotRectangle& part) {
        fill({part.left, part.top, part.right, part.top + 1});
        fill({part.left, part.bottom - 1, part.right, part.bottom});
        fill({part.left, part.top, part.left + 1, part.bottom});
        fill({part.right - 1, part.top, part.right, part.bottom});
    }

    /// Rows of squares, as text is: 6 dots with 4 dots between them.
    void text(const DotRectangle& part) {
        for (int y = part.top; y + 6 <= part.bottom; y += 10) {
            for (int x = part.left; x + 6 <= part.right; x += 10) {
                fill({x, y, x + 6, y + 6});
            }
        }
    }

    GreyPage page() const { return {dots_.data(), width_, height_, width_, 1}; }

private:
    int width_;
    int height_;
    std::vector<unsigned char> dots_;
};

}  // namespace intake::sheet
