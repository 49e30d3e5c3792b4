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
    if (array == nullptr || !isArrayDepth(bpp) || Create(width, height, bpp, 0) == nullptr) {
        return false;
    }
    SetGrayPalette();
    const std::size_t rowBytes = std::min(info.effWidth, bytesPerLine);
    for (std::uint32_t y = 0; y < height; ++y) {
        const std::uint8_t* source = array + std::size_t{y} * bytesPerLine;
        std::uint8_t* target = rowAt(flip ? height - 1 - y : y);
        if (bpp == 32) {
            copyDroppingFourthByte(source, target, width);
        } else {
            std::memcpy(target, source, rowBytes);
        }
    }
    return true;
}
