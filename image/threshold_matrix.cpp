#include "image/threshold_matrix.h"

#include <array>
#include <cstdint>

#include "image/raster_image.h"

namespace {

constexpr std::int32_t orderedMatrix[4][4] = {
    {0, 8, 2, 10},
    {12, 4, 14, 6},
    {3, 11, 1, 9},
    {15, 7, 13, 5},
};

constexpr std::uint8_t outputLevels[] = {0, 1};

constexpr int bayerOrder = 4;

// The bits of row ^ column and of column, interleaved from the lowest up.
constexpr std::uint8_t bayerThreshold(unsigned row, unsigned column) {
    unsigned value = 0;
    for (int bit = 0; bit < bayerOrder; ++bit) {
        value = (value * 2 | ((row ^ column) & 1)) * 2 | (column & 1);
        row >>= 1;
        column >>= 1;
    }
    return static_cast<std::uint8_t>(value);
}

// Pages look only at the first 16 entries: column x mod 4 of row y mod 4.
constexpr std::array<std::uint8_t, 256> makeBayerMatrix() {
    std::array<std::uint8_t, 256> matrix{};
    for (unsigned i = 0; i < matrix.size(); ++i) {
        matrix[i] = bayerThreshold(i / bayerOrder, i % bayerOrder);
    }
    return matrix;
}

template <typename Decide>
void decideEachPixel(const RasterImage& source, RasterImage& target, Decide decide) {
    for (std::int64_t y = 0; y < source.GetHeight(); ++y) {
        for (std::int64_t x = 0; x < source.GetWidth(); ++x) {
            target.BlindSetPixelIndex(x, y, decide(x, y, source.BlindGetPixelIndex(x, y)));
        }
    }
}

}  // namespace

void thresholdFixed(const RasterImage& source, RasterImage& target) {
    decideEachPixel(source, target, [](std::int64_t, std::int64_t, int level) -> std::uint8_t {
        return level <= 128 ? 0 : 255;
    });
}

void thresholdOrdered(const RasterImage& source, RasterImage& target) {
    decideEachPixel(source, target, [](std::int64_t x, std::int64_t y, int level) {
        const int scaled = level * 16 / 255;
        const bool above = orderedMatrix[y & 3][x & 3] < scaled % 16;
        return outputLevels[scaled / 16 + (above ? 1 : 0)];
    });
}

void thresholdBayer(const RasterImage& source, RasterImage& target) {
    constexpr std::array<std::uint8_t, 256> matrix = makeBayerMatrix();
    decideEachPixel(
        source, target, [&matrix](std::int64_t x, std::int64_t y, int level) -> std::uint8_t {
            const auto cell =
                static_cast<std::size_t>(x % bayerOrder + bayerOrder * (y % bayerOrder));
            return level > matrix[cell] ? 1 : 0;
        });
}
