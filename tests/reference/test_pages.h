// Pages, images and texts that several tests of the reference use.
#pragma once

#include <cstdint>
#include <string>

#include "tests/reference/grey_image.h"
#include "tests/reference/page.h"

namespace reference {

/// An image of one row with these pixels.
inline GreyImage rowImage(const Bytes& pixels) {
    return imageFromPacked(pixels, pixels.size(), 1);
}

/// A page of `height` rows × `width` columns of one grey level, rows back to back.
inline Page uniformPage(std::uint32_t width, std::uint32_t height, std::uint8_t level) {
    Page page;
    page.header.width = width;
    page.header.height = height;
    page.header.bytesPerLine = width;
    page.rows = Bytes(std::size_t{width} * height, level);
    return page;
}

/// The set-up block of a page of 8 × 1 dots at 203 dpi under settings left as they start.
inline const std::string kSetUpOf8Dots =
    "SIZE 1.0 mm, 0.1 mm\r\nGAP 0, 0\r\nREFERENCE 0,0\r\nDIRECTION 0,0\r\nDENSITY 0\r\n"
    "OFFSET 0.0 mm\r\n";

}  // namespace reference
