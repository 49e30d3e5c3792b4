// The frame of solid bars that keeps the media from wrinkling.
#pragma once

#include <cstdint>
#include <string>

#include "tests/reference/grey_image.h"
#include "tests/reference/text.h"

namespace reference {

/// A length in hundredths of a millimetre as dots of the 300 dpi head, to the nearest dot.
std::uint32_t dotsOf(std::uint32_t hundredths);

/// The frame's outer size and the thickness of its bars, in dots. Width and height are 0
/// for a page size that has no frame.
struct FrameSize {
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    std::uint32_t lineH = 0;
    std::uint32_t lineV = 0;
};

/// The frame of a level (thickness of the vertical bars in millimetres, above 0) and of a
/// page size name.
FrameSize frameSizeOf(int level, const std::string& pageSizeName);

/// An image with its frame, and the trace lines of drawing it.
struct FramedImage {
    GreyImage image;
    Lines log;
};

/// Draws the frame, index 255, on a finished image. An image smaller than the frame is first
/// enlarged with a margin of `whiteIndex`, the index that white has in the image's palette.
FramedImage antiWrinkleFrame(const GreyImage& image, int level, const std::string& pageSizeName,
                             std::uint8_t whiteIndex);

}  // namespace reference
