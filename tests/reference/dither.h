// Halftoning of grey levels to black and white by method number.
#pragma once

#include <cstddef>
#include <cstdint>

#include "tests/reference/grey_image.h"

namespace reference {

/// Halftones `levels`, height rows × width columns packed, into as many values 0 (black) or
/// 1 (white). Methods: 0 threshold, 1 ordered 4 × 4, 2 to 6 error diffusion (see kernelOf),
/// 7 Bayer; any other number is Floyd-Steinberg diffusion. `levelMask` is what a pixel can
/// store: 255, or 15 for a 4-bit source, whose levels are already 0 to 15.
Bytes dither(long method, std::size_t width, std::size_t height, const Bytes& levels,
             std::uint8_t levelMask = 255);

/// The threshold of the Bayer method for column x of row y: white is strictly above it.
std::uint8_t bayerThreshold(std::size_t x, std::size_t y);

}  // namespace reference
