#pragma once

#include <cstdint>

/// One colour as a palette holds it: four bytes in the order blue, green, red, reserved.
struct tagRGBQUAD {
    std::uint8_t rgbBlue = 0;
    std::uint8_t rgbGreen = 0;
    std::uint8_t rgbRed = 0;
    std::uint8_t rgbReserved = 0;

    bool operator==(const tagRGBQUAD&) const = default;
};

static_assert(sizeof(tagRGBQUAD) == 4, "palettes are arrays of four-byte entries");
