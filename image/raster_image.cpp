#include "image/raster_image.h"

#include <cstdio>
#include <cstring>
#include <limits>
#include <utility>

namespace {

std::uint32_t roundUpDepth(std::uint32_t bpp) {
    if (bpp <= 1) {
        return 1;
    }
    if (bpp <= 4) {
        return 4;
    }
    return bpp <= 8 ? 8 : 24;
}

std::uint32_t paletteEntries(std::uint32_t bpp) {
    return bpp == 24 ? 0 : 1U << bpp;
}

std::uint32_t strideOf(std::uint32_t width, std::uint32_t bpp) {
    return (bpp * width + 31) / 32 * 4;
}

// The working limit is the second test: a bit count that overflowed 32 bits does not divide
// back. A 32-bit product shifted down by 3 can never reach the first.
bool withinMemoryLimit(std::uint32_t width, std::uint32_t height, std::uint32_t bpp) {
    constexpr std::uint32_t maxMemory = 0x7FFFFFFF;
    const std::uint32_t bitCount = width * height * bpp;
    return (bitCount >> 3) <= maxMemory && bitCount / bpp == width * height;
}

// Some sizes whose bit count wraps round to a small number pass the limit above. The signed
// size fields and the 32-bit block size cannot describe them, so they must not be allocated.
bool isRepresentable(std::uint32_t width, std::uint32_t height, std::uint32_t bpp) {
    constexpr std::uint64_t maxSide = std::numeric_limits<std::int32_t>::max();
    constexpr std::uint64_t maxBlock = std::numeric_limits<std::uint32_t>::max();
    const std::uint64_t stride = (std::uint64_t{bpp} * width + 31) / 32 * 4;
    const std::uint64_t overhead =
        sizeof(BitmapInfoHeader) + paletteEntries(bpp) * sizeof(tagRGBQUAD);
    return width <= maxSide && height <= maxSide && stride <= (maxBlock - overhead) / height;
}

}  // namespace

void* RasterImage::Create(std::uint32_t width, std::uint32_t height, std::uint32_t bpp,
                          std::uint32_t type) {
    return create(width, height, bpp, type, Rows::Zeroed) ? dib.get() : nullptr;
}

bool RasterImage::create(std::uint32_t width, std::uint32_t height, std::uint32_t bpp,
                         std::uint32_t type, Rows rows) {
    Destroy();
    return describe(width, height, roundUpDepth(bpp), type) && allocate(rows);
}

bool RasterImage::describe(std::uint32_t width, std::uint32_t height, std::uint32_t bpp,
                           std::uint32_t type) {
    if (!checkSize(width, height, bpp)) {
        return false;
    }
    info.type = type;
    fillHeader(width, height, bpp);
    return true;
}

bool RasterImage::checkSize(std::uint32_t width, std::uint32_t height, std::uint32_t bpp) {
    if (width == 0 || height == 0) {
        setLastError("RasterImage::Create : width and height must be greater than zero");
        return false;
    }
    if (!withinMemoryLimit(width, height, bpp)) {
        setLastError("RASTERIMAGE_MAX_MEMORY exceeded");
        return false;
    }
    if (!isRepresentable(width, height, bpp)) {
        setLastError("RasterImage::Create can't allocate memory");
        return false;
    }
    return true;
}

void RasterImage::fillHeader(std::uint32_t width, std::uint32_t height, std::uint32_t bpp) {
    info.effWidth = strideOf(width, bpp);
    header.biSize = sizeof(BitmapInfoHeader);
    header.biWidth = static_cast<std::int32_t>(width);
    header.biHeight = static_cast<std::int32_t>(height);
    header.biPlanes = 1;
    header.biBitCount = static_cast<std::uint16_t>(bpp);
    header.biCompression = 0;
    header.biSizeImage = info.effWidth * height;
    header.biClrUsed = paletteEntries(bpp);
}

// Zeros define the padding at the end of each row, so that a job gives the same bytes on every
// run.
bool RasterImage::allocate(Rows rows) {
    const std::size_t size = GetSize();
    useBlock(MallocBuffer(static_cast<unsigned char*>(rows == Rows::Zeroed ? std::calloc(size, 1)
                                                                           : std::malloc(size))));
    preferLargePages(dib.get(), size);
    if (!dib) {
        setLastError("RasterImage::Create can't allocate memory");
        return false;
    }
    if (rows == Rows::Written) {
        std::memset(dib.get() + header.biSize, 0, GetPaletteSize());
        clearRowEnds();
    }
    return true;
}

void RasterImage::useBlock(MallocBuffer block) {
    dib = std::move(block);
    if (dib) {
        std::memcpy(dib.get(), &header, sizeof header);
        info.bits = dib.get() + header.biSize + GetPaletteSize();
    }
}

// The last four bytes of each row, wherever its pixels end in them.
void RasterImage::clearRowEnds() {
    if (info.effWidth * 8 ==
        std::uint32_t{header.biBitCount} * static_cast<std::uint32_t>(header.biWidth)) {
        return;
    }
    for (std::int64_t y = 1; y <= header.biHeight; ++y) {
        std::memset(rowAt(y) - 4, 0, 4);
    }
}

// The block of the former image is used on when it has the right size. Only where another is needed
// can memory be short, and then the former image is still there.
bool RasterImage::ReplaceByGrey(std::uint32_t width, std::uint32_t height) {
    RasterImage result;
    result.CopyInfo(*this);
    const bool allowed = result.describe(width, height, 8, 0);
    if (allowed && dib && GetSize() == result.GetSize()) {
        result.useBlock(std::move(dib));
        result.clearRowEnds();
    } else if (!allowed || !result.allocate(Rows::Written)) {
        setLastError(result.GetLastError());
        return false;
    }
    result.SetGrayPalette();
    return Transfer(result);
}

bool RasterImage::Destroy() {
    dib.reset();
    return true;
}

bool RasterImage::Transfer(RasterImage& from, bool /*unused*/) {
    header = std::exchange(from.header, {});
    info = std::exchange(from.info, {});
    dib = std::move(from.dib);
    return true;
}

void RasterImage::CopyInfo(const RasterImage& src) {
    if (!dib) {
        info = src.info;
    }
}

void RasterImage::createLike(const RasterImage& source, std::uint32_t width, std::uint32_t height,
                             std::uint32_t bpp, Rows rows) {
    CopyInfo(source);
    create(width, height, bpp, source.info.type, rows);
    SetPalette(source.GetPalette(), source.GetNumColors());
}

const std::uint8_t* RasterImage::GetBits(std::uint32_t row) const {
    if (!dib || (row > 0 && row >= static_cast<std::uint32_t>(header.biHeight))) {
        return nullptr;
    }
    return rowAt(row);
}

std::uint8_t* RasterImage::GetBits(std::uint32_t row) {
    return const_cast<std::uint8_t*>(std::as_const(*this).GetBits(row));
}

std::uint32_t RasterImage::GetSize() const {
    constexpr std::uint32_t entryBytes = sizeof(tagRGBQUAD);
    return header.biSize + header.biSizeImage + header.biClrUsed * entryBytes;
}

void RasterImage::setLastError(const char* text) {
    std::snprintf(info.lastError, sizeof info.lastError, "%s", text);
}
