// Brightness and contrast.
#pragma once

#include <array>
#include <cstdint>

#include "tests/reference/grey_image.h"

namespace reference {

/// The new level of each of the 256 grey levels.
using ToneTable = std::array<std::uint8_t, 256>;

/// The table for a brightness in levels (added to every level) and a contrast in percent
/// (0 keeps the slope, -100 flattens all levels). Single precision throughout.
ToneTable lightTable(int brightness, int contrast);

/// Replaces every pixel by its entry of the table; padding stays.
void applyTable(GreyImage& image, const ToneTable& table);

/// Applies the table of a brightness and a contrast.
void light(GreyImage& image, int brightness, int contrast);

}  // namespace reference
