// Error diffusion: every pixel hands its rounding error on to pixels not yet visited.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "tests/reference/grey_image.h"

namespace reference {

/// One receiver of a pixel's error: `dx` columns to the right, `dy` rows down, `weight`
/// parts of the error.
struct KernelCell {
    std::int64_t dx;
    std::int64_t dy;
    std::int64_t weight;
};

/// The receivers in the order in which they are served; each gets error × weight ÷ divisor,
/// truncated toward zero.
struct Kernel {
    std::int64_t divisor;
    std::vector<KernelCell> cells;
};

/// The kernel of a dithering method: Burkes 2, Stucki 3, Jarvis-Judice-Ninke 4, Sierra 5,
/// Stevenson-Arce 6, and Floyd-Steinberg for any other number.
Kernel kernelOf(long method);

/// Dithers `levels` (height × width, packed) with a kernel, top to bottom and left to right,
/// into height × width packed values 0 (black) and 1 (white). A level that error reaches is
/// stored AND `levelMask`. Error that falls outside the image is lost.
Bytes diffuseError(const Kernel& kernel, std::size_t width, std::size_t height, const Bytes& levels,
                   std::uint8_t levelMask);

}  // namespace reference
