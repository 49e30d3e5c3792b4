// Whole-image changes of an 8-bit image. Those that move pixels build a new image whose
// padding is 0 unless stated otherwise.
#pragma once

#include <cstddef>
#include <cstdint>

#include "tests/reference/grey_image.h"

namespace reference {

/// The image turned by 180 degrees.
GreyImage rotate180(const GreyImage& image);

/// The image with left and right exchanged.
GreyImage mirror(const GreyImage& image);

/// The image with every byte complemented, padding included.
GreyImage negative(const GreyImage& image);

/// Widths in dots of the borders that expand adds.
struct Margins {
    std::size_t left = 0;
    std::size_t top = 0;
    std::size_t right = 0;
    std::size_t bottom = 0;
};

/// The image with borders of index `fill`, padding included. The bottom margin comes first
/// in memory: source row y becomes row bottom + y.
GreyImage expand(const GreyImage& image, const Margins& margins, std::uint8_t fill);

/// The image centred in rows of `newWidth` columns, the new columns 0; unchanged when it is
/// not narrower than that.
GreyImage makeCenter(const GreyImage& image, std::size_t newWidth);

}  // namespace reference
