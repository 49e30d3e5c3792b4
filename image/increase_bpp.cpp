#include "image/raster_image.h"

bool RasterImage::IncreaseBpp(std::uint32_t nbit) {
    if (!dib || (nbit != 4 && nbit != 8 && nbit != 24)) {
        return false;
    }
    if (header.biBitCount >= nbit) {
        return header.biBitCount == nbit;
    }
    RasterImage result;
    result.createLike(*this, static_cast<std::uint32_t>(GetWidth()),
                      static_cast<std::uint32_t>(GetHeight()), nbit);
    if (!result.IsValid()) {
        setLastError(result.GetLastError());
        return false;
    }
    for (std::int64_t y = 0; y < header.biHeight; ++y) {
        for (std::int64_t x = 0; x < header.biWidth; ++x) {
            if (nbit == 24) {
                result.BlindSetPixelColor(x, y, BlindGetPixelColor(x, y));
            } else {
                result.BlindSetPixelIndex(x, y, BlindGetPixelIndex(x, y));
            }
        }
    }
    return Transfer(result);
}
