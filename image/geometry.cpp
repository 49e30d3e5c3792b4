#include <algorithm>

#include "image/raster_image.h"
#include "lanes/byte_words.h"

namespace {

constexpr std::uint32_t greyDepth = 8;

// Copies a row of bytes from the last one to the first, eight at a time.
void copyReversed(const std::uint8_t* source, std::uint8_t* target, std::size_t width) {
    for (; width >= 8; width -= 8, target += 8) {
        storeWord(__builtin_bswap64(loadWord(source + width - 8)), target);
    }
    std::reverse_copy(source, source + width, target);
}

// Both images have 8 bits per pixel and the same size.
void mirrorRows(const RasterImage& source, RasterImage& target, bool upsideDown) {
    const auto height = static_cast<std::uint32_t>(source.GetHeight());
    for (std::uint32_t y = 0; y < height; ++y) {
        copyReversed(source.GetBits(y), target.GetBits(upsideDown ? height - 1 - y : y),
                     static_cast<std::size_t>(source.GetWidth()));
    }
}

void rotateByPixel(const RasterImage& source, RasterImage& target) {
    const std::int64_t lastColumn = source.GetWidth() - 1;
    const std::int64_t lastRow = source.GetHeight() - 1;
    for (std::int64_t y = 0; y <= lastRow; ++y) {
        for (std::int64_t x = 0; x <= lastColumn; ++x) {
            target.SetPixelIndex(lastColumn - x, lastRow - y, source.BlindGetPixelIndex(x, y));
        }
    }
}

}  // namespace

bool RasterImage::Rotate180(RasterImage* dst) {
    if (!dib) {
        return false;
    }
    RasterImage result;
    result.createLike(*this, static_cast<std::uint32_t>(GetWidth()),
                      static_cast<std::uint32_t>(GetHeight()), greyDepth, Rows::Written);
    if (result.IsValid() && header.biBitCount == greyDepth) {
        mirrorRows(*this, result, true);
    } else {
        rotateByPixel(*this, result);
    }
    return (dst != nullptr ? dst : this)->Transfer(result);
}

void RasterImage::Mirror() {
    if (!dib) {
        return;
    }
    const bool bytes = header.biBitCount == greyDepth;
    RasterImage result;
    result.createLike(*this, static_cast<std::uint32_t>(GetWidth()),
                      static_cast<std::uint32_t>(GetHeight()), greyDepth,
                      bytes ? Rows::Written : Rows::Zeroed);
    if (result.IsValid() && bytes) {
        mirrorRows(*this, result, false);
    } else if (result.IsValid()) {
        mirrorBytesInto(result);
    }
    Transfer(result);
}

// At depths other than 8. Both sides advance by the source's stride, which reaches beyond one of
// the two images: bytes read there count as 0 and bytes written there are dropped.
void RasterImage::mirrorBytesInto(RasterImage& target) const {
    const std::size_t sourceSize = header.biSizeImage;
    const std::size_t targetSize = target.header.biSizeImage;
    const std::size_t lastPixel = static_cast<std::size_t>(header.biWidth) - 1;
    const std::size_t lastByte = header.biBitCount == 24 ? lastPixel * 3 : lastPixel;
    for (std::size_t y = 0; y < static_cast<std::size_t>(header.biHeight); ++y) {
        const std::size_t row = y * info.effWidth;
        const std::size_t end = std::min(row + lastByte + 1, targetSize);
        for (std::size_t to = row; to < end; ++to) {
            const std::size_t from = row + lastByte - (to - row);
            target.info.bits[to] = from < sourceSize ? info.bits[from] : 0;
        }
    }
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
