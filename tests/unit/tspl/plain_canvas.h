// A plain second account of the canvas: a flag for each dot.
#pragma once

#include <cstdint>
#include <vector>

#include "tspl/dot_canvas.h"

namespace tspl {

class PlainCanvas {
public:
    PlainCanvas(std::int64_t width, std::int64_t height)
        : width_(width), height_(height), dots_(static_cast<std::size_t>(width * height)) {}

    void clear();
    void fill(const Area& area);
    void erase(const Area& area);
    void invert(const Area& area);
    void drawBits(std::int64_t x, std::int64_t y, const std::vector<std::uint8_t>& bytes,
                  DrawMode mode);

    [[nodiscard]] bool burns(std::int64_t x, std::int64_t y) const;
    [[nodiscard]] Area burntArea() const;
    [[nodiscard]] std::uint64_t burntDots() const;
    [[nodiscard]] std::uint64_t dotsOutside() const { return outside_; }

private:
    [[nodiscard]] bool isInside(std::int64_t x, std::int64_t y) const;
    [[nodiscard]] std::size_t indexOf(std::int64_t x, std::int64_t y) const;
    void drawBit(std::int64_t x, std::int64_t y, bool bit, DrawMode mode);

    std::int64_t width_;
    std::int64_t height_;
    std::vector<bool> dots_;
    std::uint64_t outside_ = 0;
};

/// Fails the test when two canvases differ in anything that can be seen of them, up to some dots
/// beyond their edges.
void expectSame(const DotCanvas& canvas, const PlainCanvas& plain);

}  // namespace tspl
