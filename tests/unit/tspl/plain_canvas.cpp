#include "tests/unit/tspl/plain_canvas.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tspl {

bool PlainCanvas::isInside(std::int64_t x, std::int64_t y) const {
    return x >= 0 && x < width_ && y >= 0 && y < height_;
}

std::size_t PlainCanvas::indexOf(std::int64_t x, std::int64_t y) const {
    return static_cast<std::size_t>(y * width_ + x);
}

void PlainCanvas::clear() {
    dots_.assign(dots_.size(), false);
    outside_ = 0;
}

void PlainCanvas::fill(const Area& area) {
    for (std::int64_t y = area.y; y < area.y + area.height; ++y) {
        for (std::int64_t x = area.x; x < area.x + area.width; ++x) {
            drawBit(x, y, true, DrawMode::Or);
        }
    }
}

void PlainCanvas::erase(const Area& area) {
    for (std::int64_t y = area.y; y < area.y + area.height; ++y) {
        for (std::int64_t x = area.x; x < area.x + area.width; ++x) {
            drawBit(x, y, false, DrawMode::Overwrite);
        }
    }
}

// A swap beyond the edges burns nothing that could be counted: what stands there is not known.
void PlainCanvas::invert(const Area& area) {
    for (std::int64_t y = area.y; y < area.y + area.height; ++y) {
        for (std::int64_t x = area.x; x < area.x + area.width; ++x) {
            if (isInside(x, y)) {
                drawBit(x, y, true, DrawMode::ExclusiveOr);
            }
        }
    }
}

void PlainCanvas::drawBits(std::int64_t x, std::int64_t y, const std::vector<std::uint8_t>& bytes,
                           DrawMode mode) {
    for (const std::uint8_t byte : bytes) {
        for (unsigned bit = 0; bit < 8; ++bit) {
            drawBit(x++, y, (byte >> (7 - bit)) % 2 == 1, mode);
        }
    }
}

void PlainCanvas::drawBit(std::int64_t x, std::int64_t y, bool bit, DrawMode mode) {
    if (!isInside(x, y)) {
        outside_ += bit ? 1 : 0;
        return;
    }
    const bool old = dots_[indexOf(x, y)];
    const bool both = mode == DrawMode::Or ? old || bit : old != bit;
    dots_[indexOf(x, y)] = mode == DrawMode::Overwrite ? bit : both;
}

bool PlainCanvas::burns(std::int64_t x, std::int64_t y) const {
    return isInside(x, y) && dots_[indexOf(x, y)];
}

Area PlainCanvas::burntArea() const {
    Area area;
    for (std::int64_t y = 0; y < height_; ++y) {
        for (std::int64_t x = 0; x < width_; ++x) {
            if (burns(x, y)) {
                area.width = std::max(area.width, x + 1);
                area.height = y + 1;
            }
        }
    }
    return area;
}

std::uint64_t PlainCanvas::burntDots() const {
    return static_cast<std::uint64_t>(std::count(dots_.begin(), dots_.end(), true));
}

void expectSame(const DotCanvas& canvas, const PlainCanvas& plain) {
    for (std::int64_t y = -2; y < canvas.height() + 2; ++y) {
        for (std::int64_t x = -9; x < canvas.width() + 9; ++x) {
            ASSERT_EQ(canvas.burns(x, y), plain.burns(x, y)) << x << ", " << y;
        }
    }
    EXPECT_EQ(canvas.burntDots(), plain.burntDots());
    EXPECT_EQ(canvas.dotsOutside(), plain.dotsOutside());
    EXPECT_EQ(canvas.burntArea().x, 0);
    EXPECT_EQ(canvas.burntArea().y, 0);
    EXPECT_EQ(canvas.burntArea().width, plain.burntArea().width);
    EXPECT_EQ(canvas.burntArea().height, plain.burntArea().height);
}

}  // namespace tspl
