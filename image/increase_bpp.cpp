#include "image/raster_image.h"
#include "lanes/byte_words.h"

namespace {

// A row of bits as bytes of 0 and 1.
void widenBits(const std::uint8_t* bits, std::uint8_t* bytes, std::size_t width) {
    for (; width >= 8; width -= 8, bytes += 8) {
        storeWord(unpackedBits(*bits++), bytes);
    }
    if (width != 0) {
        storePartOfWord(unpackedBits(*bits), bytes, width);
    }
}

void widenByPixel(const RasterImage& source, RasterImage& target) {
    const bool toColours = target.GetHeader().biBitCount == 24;
    for (std::int64_t y = 0; y < source.GetHeight(); ++y) {
        for (std::int64_t x = 0; x < source.GetWidth(); ++x) {
            if (toColours) {
                target.BlindSetPixelColor(x, y, source.BlindGetPixelColor(x, y));
            } else {
                target.BlindSetPixelIndex(x, y, source.BlindGetPixelIndex(x, y));
            }
        }
    }
}

void widen(const RasterImage& source, RasterImage& target) {
    if (source.GetHeader().biBitCount != 1 || target.GetHeader().biBitCount != 8) {
        return widenByPixel(source, target);
    }
    const auto height = static_cast<std::uint32_t>(source.GetHeight());
    for (std::uint32_t y = 0; y < height; ++y) {
        widenBits(source.GetBits(y), target.GetBits(y),
                  static_cast<std::size_t>(source.GetWidth()));
    }
}

}  // namespace

bool RasterImage::IncreaseBpp(std::uint32_t nbit) {
    if (!dib || (nbit != 4 && nbit != 8 && nbit != 24)) {
        return false;
    }
    if (header.biBitCount >= nbit) {
        return header.biBitCount == nbit;
    }
    RasterImage result;
    result.createLike(*this, static_cast<std::uint32_t>(GetWidth()),
                      static_cast<std::uint32_t>(GetHeight()), nbit, Rows::Written);
    if (!result.IsValid()) {
        setLastError(result.GetLastError());
        return false;
    }
    widen(*this, result);
    return Transfer(result);
}
