#include "image/raster_image.h"

std::uint8_t RasterImage::GetPixelIndex(std::int64_t x, std::int64_t y) const {
    if (!dib || header.biClrUsed == 0) {
        return 0;
    }
    return contains(x, y) ? BlindGetPixelIndex(x, y) : info.bits[0];
}

void RasterImage::SetPixelIndex(std::int64_t x, std::int64_t y, std::uint8_t index) {
    if (dib && header.biClrUsed != 0 && contains(x, y)) {
        BlindSetPixelIndex(x, y, index);
    }
}

std::uint8_t RasterImage::BlindGetPixelIndex(std::int64_t x, std::int64_t y) const {
    const std::uint8_t* row = rowAt(y);
    switch (header.biBitCount) {
        case 8:
            return row[x];
        case 4:
            return static_cast<std::uint8_t>((row[x / 2] >> (x % 2 == 0 ? 4 : 0)) & 0x0F);
        case 1:
            return static_cast<std::uint8_t>((row[x / 8] >> (7 - x % 8)) & 0x01);
        default:
            return 0;
    }
}

void RasterImage::BlindSetPixelIndex(std::int64_t x, std::int64_t y, std::uint8_t index) {
    std::uint8_t* row = rowAt(y);
    const auto store = [](std::uint8_t& byte, int mask, int shift, int value) {
        byte = static_cast<std::uint8_t>((byte & ~(mask << shift)) | ((value & mask) << shift));
    };
    switch (header.biBitCount) {
        case 8:
            row[x] = index;
            break;
        case 4:
            store(row[x / 2], 0x0F, x % 2 == 0 ? 4 : 0, index);
            break;
        case 1:
            store(row[x / 8], 0x01, static_cast<int>(7 - x % 8), index);
            break;
        default:
            break;
    }
}

tagRGBQUAD RasterImage::BlindGetPixelColor(std::int64_t x, std::int64_t y, bool /*unused*/) const {
    if (header.biClrUsed != 0) {
        return GetPaletteColor(BlindGetPixelIndex(x, y));
    }
    const std::uint8_t* pixel = rowAt(y) + x * 3;
    return {pixel[0], pixel[1], pixel[2], 0};
}

void RasterImage::BlindSetPixelColor(std::int64_t x, std::int64_t y, tagRGBQUAD c,
                                     bool /*unused*/) {
    if (header.biClrUsed != 0) {
        BlindSetPixelIndex(x, y, GetNearestIndex(c));
        return;
    }
    std::uint8_t* pixel = rowAt(y) + x * 3;
    pixel[0] = c.rgbBlue;
    pixel[1] = c.rgbGreen;
    pixel[2] = c.rgbRed;
}
