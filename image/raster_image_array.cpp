#include <algorithm>
#include <cstring>

#include "image/raster_image.h"

namespace {

bool isArrayDepth(std::uint32_t bpp) {
    return bpp == 1 || bpp == 4 || bpp == 8 || bpp == 24 || bpp == 32;
}

void copyDroppingFourthByte(const std::uint8_t* source, std::uint8_t* target, std::uint32_t width) {
    for (std::uint32_t x = 0; x < width; ++x) {
        std::copy_n(source, 3, target);
        source += 4;
        target += 3;
    }
}

}  // namespace

bool RasterImage::CreateFromArray(const std::uint8_t* array, std::uint32_t width,
                                  std::uint32_t height, std::uint32_t bpp,
                                  std::uint32_t bytesPerLine, bool flip) {
    // Packed rows fill all rows of the image but for their last bytes; others may not.
    const bool packed = bpp == 8 && bytesPerLine >= width;
    if (array == nullptr || !isArrayDepth(bpp) ||
        !create(width, height, bpp, 0, packed ? Rows::Written : Rows::Zeroed)) {
        return false;
    }
    SetGrayPalette();
    if (bpp != 32) {
        copyRows(array, bytesPerLine, flip);
        return true;
    }
    for (std::uint32_t y = 0; y < height; ++y) {
        copyDroppingFourthByte(array + std::size_t{y} * bytesPerLine,
                               rowAt(flip ? height - 1 - y : y), width);
    }
    return true;
}

bool RasterImage::LoadGrey(const std::uint8_t* array, std::uint32_t width, std::uint32_t height,
                           std::uint32_t bytesPerLine) {
    if (array == nullptr || !ReplaceByGrey(width, height)) {
        return false;
    }
    // Pixels that no row reaches are 0, not those of the former image.
    if (bytesPerLine < width) {
        std::memset(info.bits, 0, header.biSizeImage);
    }
    copyRows(array, bytesPerLine, false);
    return true;
}

void RasterImage::copyRows(const std::uint8_t* array, std::uint32_t bytesPerLine, bool flip) {
    const std::size_t rowBytes = std::min(info.effWidth, bytesPerLine);
    const std::int64_t height = header.biHeight;
    for (std::int64_t y = 0; y < height; ++y) {
        std::memcpy(rowAt(flip ? height - 1 - y : y), array, rowBytes);
        array += bytesPerLine;
    }
}
