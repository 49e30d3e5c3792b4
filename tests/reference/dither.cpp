#include "tests/reference/dither.h"

#include "tests/reference/error_diffusion.h"

namespace reference {

namespace {

std::uint8_t thresholdValue(std::uint8_t level) {
    return level <= 128 ? 0 : 1;
}

std::uint8_t orderedValue(std::uint8_t level, std::size_t x, std::size_t y) {
    const int matrix[4][4] = {{0, 8, 2, 10}, {12, 4, 14, 6}, {3, 11, 1, 9}, {15, 7, 13, 5}};
    const std::uint8_t table[2] = {0, 1};
    const int quotient = level * 16 / 255;
    const int dots = quotient % 16;
    const int step = quotient / 16;
    return matrix[y % 4][x % 4] < dots ? table[step + 1] : table[step];
}

std::uint8_t bayerValue(std::uint8_t level, std::size_t x, std::size_t y) {
    return level > bayerThreshold(x, y) ? 1 : 0;
}

std::uint8_t pointValue(long method, std::uint8_t level, std::size_t x, std::size_t y) {
    if (method == 0) {
        return thresholdValue(level);
    }
    return method == 1 ? orderedValue(level, x, y) : bayerValue(level, x, y);
}

Bytes ditherByPoint(long method, std::size_t width, std::size_t height, const Bytes& levels) {
    Bytes values;
    for (std::size_t y = 0; y < height; ++y) {
        for (std::size_t x = 0; x < width; ++x) {
            values.push_back(pointValue(method, levels[y * width + x], x, y));
        }
    }
    return values;
}

}  // namespace

Bytes dither(long method, std::size_t width, std::size_t height, const Bytes& levels,
             std::uint8_t levelMask) {
    if (method == 0 || method == 1 || method == 7) {
        return ditherByPoint(method, width, height, levels);
    }
    return diffuseError(kernelOf(method), width, height, levels, levelMask);
}

std::uint8_t bayerThreshold(std::size_t x, std::size_t y) {
    unsigned a = static_cast<unsigned>(y % 4);
    unsigned b = static_cast<unsigned>(x % 4);
    unsigned value = 0;
    for (int bit = 0; bit < 4; ++bit) {
        value = value * 2 + ((a ^ b) % 2);
        value = value * 2 + b % 2;
        a /= 2;
        b /= 2;
    }
    return static_cast<std::uint8_t>(value);
}

}  // namespace reference
