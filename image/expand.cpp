#include <algorithm>
#include <cstring>
#include <limits>

#include "image/raster_image.h"

namespace {

struct Rectangle {
    std::int64_t left;
    std::int64_t top;
    std::int64_t width;
    std::int64_t height;

    bool contains(std::int64_t x, std::int64_t y) const {
        return x >= left && x < left + width && y >= top && y < top + height;
    }
};

// A sum beyond 32 bits stays at the largest side, which no image can have.
std::uint32_t enlargedSide(std::int32_t side, long before, long after) {
    constexpr std::int64_t largest = std::numeric_limits<std::uint32_t>::max();
    const std::int64_t margins =
        std::min<std::int64_t>(before, largest) + std::min<std::int64_t>(after, largest);
    return static_cast<std::uint32_t>(std::min(margins + side, largest));
}

void fillRows(RasterImage& image, tagRGBQUAD colour) {
    const auto height = static_cast<std::uint32_t>(image.GetHeight());
    if (image.GetNumColors() != 0) {
        std::memset(image.GetBits(), image.GetNearestIndex(colour),
                    std::size_t{image.GetEffWidth()} * height);
        return;
    }
    for (std::int64_t y = 0; y < image.GetHeight(); ++y) {
        for (std::int64_t x = 0; x < image.GetWidth(); ++x) {
            image.BlindSetPixelColor(x, y, colour);
        }
    }
}

// Whole bytes per pixel: fill everything, then lay the source rows over it.
void expandByRows(const RasterImage& source, RasterImage& target, Rectangle place,
                  tagRGBQUAD colour) {
    fillRows(target, colour);
    const std::size_t pixelBytes = source.GetHeader().biBitCount / 8;
    for (std::int64_t y = 0; y < place.height; ++y) {
        std::memcpy(target.GetBits(static_cast<std::uint32_t>(place.top + y)) +
                        static_cast<std::size_t>(place.left) * pixelBytes,
                    source.GetBits(static_cast<std::uint32_t>(y)),
                    static_cast<std::size_t>(place.width) * pixelBytes);
    }
}

void expandByPixels(const RasterImage& source, RasterImage& target, Rectangle place,
                    tagRGBQUAD colour) {
    const std::uint8_t canvas = target.GetNearestIndex(colour);
    for (std::int64_t y = 0; y < target.GetHeight(); ++y) {
        for (std::int64_t x = 0; x < target.GetWidth(); ++x) {
            target.SetPixelIndex(x, y,
                                 place.contains(x, y)
                                     ? source.GetPixelIndex(x - place.left, y - place.top)
                                     : canvas);
        }
    }
}

}  // namespace

bool RasterImage::Expand(long left, long top, long right, long bottom, tagRGBQUAD canvasColor) {
    if (!dib || left < 0 || top < 0 || right < 0 || bottom < 0) {
        return false;
    }
    RasterImage result;
    result.createLike(*this, enlargedSide(header.biWidth, left, right),
                      enlargedSide(header.biHeight, top, bottom), header.biBitCount);
    if (!result.IsValid()) {
        setLastError(result.GetLastError());
        return false;
    }
    const Rectangle place = {left, bottom, header.biWidth, header.biHeight};
    if (header.biBitCount < 8) {
        expandByPixels(*this, result, place, canvasColor);
    } else {
        expandByRows(*this, result, place, canvasColor);
    }
    return Transfer(result);
}
