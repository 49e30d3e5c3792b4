// Stencil halftones of grey images that lie packed in memory, height × width.
#pragma once

#include <cstddef>

#include "tests/reference/grey_image.h"

namespace reference {

/// Dithers to 0 and 255 with six cells, two of them negative; a white dot inside the image
/// takes less off the error for each black dot above and to the left of it.
Bytes diffuseStencil(std::size_t width, std::size_t height, const Bytes& grey, int threshold);

/// The stencil halftone "Tattoo", or with `x8` "Tattoo_X8": every byte 0 or 255.
Bytes stencil(std::size_t width, std::size_t height, const Bytes& grey, bool x8);

}  // namespace reference
