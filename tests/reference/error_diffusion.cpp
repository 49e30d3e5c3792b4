#include "tests/reference/error_diffusion.h"

#include <algorithm>

namespace reference {

namespace {

Kernel floydSteinberg() {
    return {16, {{1, 0, 7}, {-1, 1, 3}, {0, 1, 5}, {1, 1, 1}}};
}

Kernel burkes() {
    return {32, {{1, 0, 8}, {2, 0, 4}, {-2, 1, 2}, {-1, 1, 4}, {0, 1, 8}, {1, 1, 4}, {2, 1, 2}}};
}

Kernel stucki() {
    return {42,
            {{1, 0, 8},
             {2, 0, 4},
             {-2, 1, 2},
             {-1, 1, 4},
             {0, 1, 8},
             {1, 1, 4},
             {2, 1, 2},
             {-2, 2, 1},
             {-1, 2, 2},
             {0, 2, 4},
             {1, 2, 2},
             {2, 2, 1}}};
}

Kernel jarvisJudiceNinke() {
    return {48,
            {{1, 0, 7},
             {2, 0, 5},
             {-2, 1, 3},
             {-1, 1, 5},
             {0, 1, 7},
             {1, 1, 5},
             {2, 1, 3},
             {-2, 2, 1},
             {-1, 2, 3},
             {0, 2, 5},
             {1, 2, 3},
             {2, 2, 1}}};
}

Kernel sierra() {
    return {32,
            {{1, 0, 5},
             {2, 0, 3},
             {-2, 1, 2},
             {-1, 1, 4},
             {0, 1, 5},
             {1, 1, 4},
             {2, 1, 2},
             {-1, 2, 2},
             {0, 2, 3},
             {1, 2, 2}}};
}

Kernel stevensonArce() {
    return {200,
            {{2, 0, 32},
             {-3, 1, 12},
             {-1, 1, 26},
             {1, 1, 30},
             {3, 1, 16},
             {-2, 2, 12},
             {0, 2, 26},
             {2, 2, 12},
             {-3, 3, 5},
             {-1, 3, 12},
             {1, 3, 12},
             {3, 3, 5}}};
}

/// The levels of a page while error runs through them.
struct Field {
    std::int64_t width;
    std::int64_t height;
    Bytes levels;
    std::uint8_t mask;
};

std::size_t placeIn(const Field& field, std::int64_t x, std::int64_t y) {
    return static_cast<std::size_t>(y * field.width + x);
}

void addShare(Field& field, std::int64_t x, std::int64_t y, std::int64_t share) {
    if (x < 0 || x >= field.width || y < 0 || y >= field.height) {
        return;
    }
    std::uint8_t& level = field.levels[placeIn(field, x, y)];
    const std::int64_t sum = std::clamp<std::int64_t>(level + share, 0, 255);
    level = static_cast<std::uint8_t>(sum & field.mask);
}

std::uint8_t ditherPixel(Field& field, const Kernel& kernel, std::int64_t x, std::int64_t y) {
    const std::int64_t level = field.levels[placeIn(field, x, y)];
    const bool white = level > 128;
    const std::int64_t error = white ? level - 255 : level;
    for (const KernelCell& cell : kernel.cells) {
        addShare(field, x + cell.dx, y + cell.dy, error * cell.weight / kernel.divisor);
    }
    return white ? 1 : 0;
}

}  // namespace

Kernel kernelOf(long method) {
    switch (method) {
        case 2:
            return burkes();
        case 3:
            return stucki();
        case 4:
            return jarvisJudiceNinke();
        case 5:
            return sierra();
        case 6:
            return stevensonArce();
        default:
            return floydSteinberg();
    }
}

Bytes diffuseError(const Kernel& kernel, std::size_t width, std::size_t height, const Bytes& levels,
                   std::uint8_t levelMask) {
    Field field{static_cast<std::int64_t>(width), static_cast<std::int64_t>(height), levels,
                levelMask};
    Bytes values;
    for (std::int64_t y = 0; y < field.height; ++y) {
        for (std::int64_t x = 0; x < field.width; ++x) {
            values.push_back(ditherPixel(field, kernel, x, y));
        }
    }
    return values;
}

}  // namespace reference
