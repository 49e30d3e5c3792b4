#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "intake/content/byte_vector.h"

namespace intake::content {

/// Edge of a block in dots: 1 mm at 203 dpi.
inline constexpr std::size_t blockDots = 8;
/// How often what is continuous spreads to the row of blocks above and below.
inline constexpr std::size_t spreads = 4;

/// One value per block of a row: a level, a count, or 1 and 0.
using PerBlock = std::vector<std::uint8_t>;

/// A row of blocks and what is known of each of them. Levels are those of K: 0 paper, 255 black.
struct BlockRow {
    /// A page of so many columns. The last one is repeated to the end of the line.
    explicit BlockRow(std::size_t columns)
        : blocks((columns + blockDots - 1) / blockDots),
          stride((columns + vectorBytes - 1) / vectorBytes * vectorBytes),
          pixels(blockDots * pitch()) {
        for (PerBlock* values : {&least, &most, &windowLeast, &windowMost, &smooth, &touchesRight,
                                 &touchesBelow, &isInTint, &isLeft}) {
            values->resize(blocks);
        }
        for (PerBlock& values : isContinuous) {
            values.resize(blocks);
        }
    }

    /// From a line to the next one.
    [[nodiscard]] std::size_t pitch() const { return stride + vectorBytes; }
    std::uint8_t* line(std::size_t i) { return pixels.data() + i * pitch(); }
    [[nodiscard]] const std::uint8_t* line(std::size_t i) const {
        return pixels.data() + i * pitch();
    }

    std::size_t blocks;
    std::size_t stride;     ///< dots of whole vectors
    std::size_t lines = 0;  ///< of the page; the rest repeat the last one
    std::vector<std::uint8_t> pixels;
    PerBlock least, most;                 ///< levels of the block
    PerBlock windowLeast, windowMost;     ///< of the block and the eight around it
    PerBlock smooth;                      ///< dots of middle levels without an edge
    bool hasSmooth = false;               ///< there may be some
    PerBlock touchesRight, touchesBelow;  ///< the next block, with more than paper
    PerBlock isInTint;                    ///< of a square that begins in this row
    /// From the seeds on, and after each spreading.
    std::array<PerBlock, spreads + 1> isContinuous;
    std::array<bool, spreads + 1> hasContinuous{};
    PerBlock isLeft;  ///< to the printer's halftone: continuous, or light beside it
};

}  // namespace intake::content
