#include "image/threshold_matrix.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "image/raster_image.h"
#include "lanes/byte_marks.h"
#include "lanes/byte_words.h"

namespace {

constexpr std::size_t blockBytes = sizeof(lanes::Bytes);

/// The lowest white level of every pixel, by row y mod 4 and column x mod 4.
using LowestWhite = std::array<std::array<std::uint8_t, 4>, 4>;

constexpr int orderedMatrix[4][4] = {
    {0, 8, 2, 10},
    {12, 4, 14, 6},
    {3, 11, 1, 9},
    {15, 7, 13, 5},
};

constexpr int bayerOrder = 4;

// The bits of row ^ column and of column, interleaved from the lowest up.
constexpr int bayerThreshold(unsigned row, unsigned column) {
    unsigned value = 0;
    for (int bit = 0; bit < bayerOrder; ++bit) {
        value = (value * 2 | ((row ^ column) & 1)) * 2 | (column & 1);
        row >>= 1;
        column >>= 1;
    }
    return static_cast<int>(value);
}

template <typename Level>
constexpr LowestWhite lowestWhite(Level level) {
    LowestWhite result{};
    for (unsigned y = 0; y < 4; ++y) {
        for (unsigned x = 0; x < 4; ++x) {
            result[y][x] = static_cast<std::uint8_t>(level(y, x));
        }
    }
    return result;
}

constexpr LowestWhite fixedLevels = lowestWhite([](unsigned, unsigned) { return 129; });

// White where level × 16 ÷ 255, cut off, is above the matrix.
constexpr LowestWhite orderedLevels =
    lowestWhite([](unsigned y, unsigned x) { return ((orderedMatrix[y][x] + 1) * 255 + 15) / 16; });

constexpr LowestWhite bayerLevels =
    lowestWhite([](unsigned y, unsigned x) { return bayerThreshold(y, x) + 1; });

void thresholdByPixel(const RasterImage& source, RasterImage& target, const LowestWhite& limits) {
    for (std::int64_t y = 0; y < source.GetHeight(); ++y) {
        for (std::int64_t x = 0; x < source.GetWidth(); ++x) {
            const bool white = source.BlindGetPixelIndex(x, y) >= limits[y & 3][x & 3];
            target.BlindSetPixelIndex(x, y, white ? 1 : 0);
        }
    }
}

// One row of bytes. As no limit is 0, what is missing of the last eight pixels stays black.
void thresholdRow(const std::uint8_t* levels, std::size_t width,
                  const std::array<std::uint8_t, 4>& rowLimits, std::uint8_t* dots) {
    const ByteWord four = loadPartOfWord(rowLimits.data(), 4);
    const ByteWord limits = four << 32 | four;
    const lanes::Bytes blockLimits = lanes::repeated(limits);
    for (; width >= blockBytes; width -= blockBytes, levels += blockBytes) {
        const unsigned marks =
            lanes::packedMarks(lanes::isAtLeast(lanes::loadBytes(levels), blockLimits));
        *dots++ = static_cast<std::uint8_t>(marks);
        *dots++ = static_cast<std::uint8_t>(marks >> 8);
    }
    while (width != 0) {
        const std::size_t part = std::min<std::size_t>(width, 8);
        *dots++ = packedTopBits(isAtLeast(loadPartOfWord(levels, part), limits));
        levels += part;
        width -= part;
    }
}

void thresholdBy(const RasterImage& source, RasterImage& target, const LowestWhite& limits) {
    if (source.GetHeader().biBitCount != 8) {
        return thresholdByPixel(source, target, limits);
    }
    const auto height = static_cast<std::uint32_t>(source.GetHeight());
    for (std::uint32_t y = 0; y < height; ++y) {
        thresholdRow(source.GetBits(y), static_cast<std::size_t>(source.GetWidth()), limits[y & 3],
                     target.GetBits(y));
    }
}

}  // namespace

void thresholdFixed(const RasterImage& source, RasterImage& target) {
    thresholdBy(source, target, fixedLevels);
}

void thresholdOrdered(const RasterImage& source, RasterImage& target) {
    thresholdBy(source, target, orderedLevels);
}

void thresholdBayer(const RasterImage& source, RasterImage& target) {
    thresholdBy(source, target, bayerLevels);
}
