#include <algorithm>
#include <cstring>

#include "image/raster_image.h"

namespace {

int squaredDistance(tagRGBQUAD a, tagRGBQUAD b) {
    const int blue = a.rgbBlue - b.rgbBlue;
    const int green = a.rgbGreen - b.rgbGreen;
    const int red = a.rgbRed - b.rgbRed;
    return blue * blue + green * green + red * red;
}

}  // namespace

tagRGBQUAD* RasterImage::GetPalette() const {
    if (!dib || header.biClrUsed == 0) {
        return nullptr;
    }
    return reinterpret_cast<tagRGBQUAD*>(dib.get() + sizeof(BitmapInfoHeader));
}

std::uint32_t RasterImage::GetPaletteSize() const {
    return dib ? header.biClrUsed * static_cast<std::uint32_t>(sizeof(tagRGBQUAD)) : 0;
}

void RasterImage::SetPalette(const tagRGBQUAD* pal, std::uint32_t nColors) {
    tagRGBQUAD* palette = GetPalette();
    if (palette != nullptr && pal != nullptr) {
        std::memmove(palette, pal, std::min(header.biClrUsed, nColors) * sizeof(tagRGBQUAD));
    }
}

void RasterImage::SetGrayPalette() {
    tagRGBQUAD* palette = GetPalette();
    if (palette == nullptr) {
        return;
    }
    const std::uint32_t step = 255 / (header.biClrUsed - 1);
    for (std::uint32_t i = 0; i < header.biClrUsed; ++i) {
        const auto level = static_cast<std::uint8_t>(i * step);
        palette[i].rgbBlue = palette[i].rgbGreen = palette[i].rgbRed = level;
    }
}

void RasterImage::SetPaletteColor(std::uint8_t index, std::uint8_t r, std::uint8_t g,
                                  std::uint8_t b, std::uint8_t alpha) {
    tagRGBQUAD* palette = GetPalette();
    if (palette != nullptr && index < header.biClrUsed) {
        palette[index] = {b, g, r, alpha};
    }
}

tagRGBQUAD RasterImage::GetPaletteColor(std::uint8_t index) const {
    const tagRGBQUAD* palette = GetPalette();
    return palette != nullptr && index < header.biClrUsed ? palette[index] : tagRGBQUAD{};
}

// The answer is recorded but never reused: a palette may have changed since.
std::uint8_t RasterImage::GetNearestIndex(tagRGBQUAD c) {
    const tagRGBQUAD* palette = GetPalette();
    if (palette == nullptr) {
        return 0;
    }
    info.lastColor = c;
    info.lastColorValid = true;
    const std::uint32_t searched = header.biClrImportant != 0
                                       ? std::min(header.biClrImportant, header.biClrUsed)
                                       : header.biClrUsed;
    int bestDistance = 200000;
    std::uint32_t best = 0;
    for (std::uint32_t i = 0; i < searched && bestDistance > 0; ++i) {
        const int distance = squaredDistance(palette[i], c);
        if (distance < bestDistance) {
            bestDistance = distance;
            best = i;
        }
    }
    info.lastColorIndex = static_cast<std::uint8_t>(best);
    return info.lastColorIndex;
}
