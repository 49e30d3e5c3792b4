// An 8-bit image with padded rows, as the page lies in memory while it is worked on.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace reference {

/// Bytes of pixels or of a file, in memory order.
using Bytes = std::vector<std::uint8_t>;

/// An image of `height` rows × `width` columns, one byte per pixel, rows `stride` bytes
/// apart. Row 0 is the first in memory. `bytes` holds stride × height bytes, the padding at
/// the end of each row included.
struct GreyImage {
    std::size_t width = 0;
    std::size_t height = 0;
    std::size_t stride = 0;
    Bytes bytes;
};

/// The distance in bytes of two rows of `width` 8-bit pixels: width rounded up to a
/// multiple of 4.
std::size_t strideOf(std::size_t width);

/// An image of `height` rows × `width` columns whose bytes, padding included, are all `fill`.
GreyImage filledImage(std::size_t width, std::size_t height, std::uint8_t fill);

/// The image loaded from `height` rows that lie `bytesPerLine` bytes apart in `array`. Of
/// each row min(stride, bytesPerLine) bytes are copied, so the padding holds what follows
/// the pixels in the array's row; bytes that no row supplies are 0.
GreyImage imageFromArray(const Bytes& array, std::size_t width, std::size_t height,
                         std::size_t bytesPerLine);

/// The image of `height` × `width` pixels that lie back to back in `pixels`; padding is 0.
GreyImage imageFromPacked(const Bytes& pixels, std::size_t width, std::size_t height);

/// The pixels of the image back to back, height rows × width columns without padding.
Bytes packedPixels(const GreyImage& image);

/// The pixel at column x of row y, which must lie inside the image.
std::uint8_t pixelAt(const GreyImage& image, std::size_t x, std::size_t y);

/// Sets the pixel at column x of row y; a point outside the image is dropped.
void setPixel(GreyImage& image, std::int64_t x, std::int64_t y, std::uint8_t value);

}  // namespace reference
