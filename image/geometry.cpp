#include <algorithm>

#include "image/raster_image.h"

namespace {

constexpr std::uint32_t greyDepth = 8;

}  // namespace

bool RasterImage::Rotate180(RasterImage* dst) {
    if (!dib) {
        return false;
    }
    RasterImage result;
    result.createLike(*this, static_cast<std::uint32_t>(GetWidth()),
                      static_cast<std::uint32_t>(GetHeight()), greyDepth);
    const std::int64_t lastColumn = header.biWidth - 1;
    const std::int64_t lastRow = header.biHeight - 1;
    for (std::int64_t y = 0; y <= lastRow; ++y) {
        for (std::int64_t x = 0; x <= lastColumn; ++x) {
            result.SetPixelIndex(lastColumn - x, lastRow - y, BlindGetPixelIndex(x, y));
        }
    }
    return (dst != nullptr ? dst : this)->Transfer(result);
}

// Both sides advance by the source's stride. At depths other than 8 that reaches beyond one
// of the two images: bytes read there count as 0 and bytes written there are dropped.
void RasterImage::Mirror() {
    if (!dib) {
        return;
    }
    RasterImage result;
    result.createLike(*this, static_cast<std::uint32_t>(GetWidth()),
                      static_cast<std::uint32_t>(GetHeight()), greyDepth);
    const std::size_t sourceSize = header.biSizeImage;
    const std::size_t targetSize = result.IsValid() ? result.header.biSizeImage : 0;
    const std::size_t lastPixel = static_cast<std::size_t>(header.biWidth) - 1;
    const std::size_t lastByte = header.biBitCount == 24 ? lastPixel * 3 : lastPixel;
    for (std::size_t y = 0; y < static_cast<std::size_t>(header.biHeight); ++y) {
        const std::size_t row = y * info.effWidth;
        const std::size_t end = std::min(row + lastByte + 1, targetSize);
        for (std::size_t to = row; to < end; ++to) {
            const std::size_t from = row + lastByte - (to - row);
            result.info.bits[to] = from < sourceSize ? info.bits[from] : 0;
        }
    }
    Transfer(result);
}

void RasterImage::MakeCenter(int newWidth) {
    if (!dib || GetWidth() >= newWidth) {
        return;
    }
    RasterImage result;
    result.createLike(*this, static_cast<std::uint32_t>(newWidth),
                      static_cast<std::uint32_t>(GetHeight()), greyDepth);
    const std::int64_t offset = (newWidth - GetWidth()) / 2;
    for (std::int64_t y = 0; y < header.biHeight; ++y) {
        for (std::int64_t x = 0; x < header.biWidth; ++x) {
            result.SetPixelIndex(x + offset, y, BlindGetPixelIndex(x, y));
        }
    }
    Transfer(result);
}
