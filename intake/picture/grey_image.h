#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace intake::picture {

/// Grey dots, height rows x width columns without gaps; 0 is black, 255 white.
struct GreyImage {
    GreyImage() = default;
    /// A white one.
    GreyImage(unsigned columns, unsigned rows)
        : width(columns), height(rows), dots(std::size_t{columns} * rows, 255) {}

    std::span<std::uint8_t> row(unsigned index) {
        return std::span(dots).subspan(std::size_t{index} * width, width);
    }
    std::span<const std::uint8_t> row(unsigned index) const {
        return std::span(dots).subspan(std::size_t{index} * width, width);
    }

    unsigned width = 0;
    unsigned height = 0;
    std::vector<std::uint8_t> dots;
};

}  // namespace intake::picture
