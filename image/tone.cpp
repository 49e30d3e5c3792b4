#include <algorithm>
#include <array>

#include "image/raster_image.h"
#include "image/tone_kernels.h"
#include "lanes/choice.h"

namespace {

// Single precision, each step rounded, as the printed dots depend on it.
std::uint8_t lightLevel(int level, float offset, float slope) {
    float value = static_cast<float>(level - 128) * slope;
    value = value + offset;
    value = value + 0.5F;
    // Clamping before the truncation keeps huge values inside the range of int.
    return static_cast<std::uint8_t>(std::clamp(value, 0.0F, 255.0F));
}

void replaceBytes(std::uint8_t* row, std::size_t width, const std::uint8_t* table) {
    std::transform(row, row + width, row, [table](std::uint8_t index) { return table[index]; });
}

}  // namespace

bool RasterImage::Light(int brightness, int contrast) {
    if (!dib) {
        return false;
    }
    // Wide sums, so that no argument overflows.
    const float slope = static_cast<float>(std::int64_t{contrast} + 100) / 100.0F;
    const auto offset = static_cast<float>(std::int64_t{brightness} + 128);
    if (header.biBitCount == 8) {
        for (std::int64_t y = 0; y < header.biHeight; ++y) {
            lanes::best<ToneKernels>().light(rowAt(y), static_cast<std::size_t>(header.biWidth),
                                             {offset, slope});
        }
        return true;
    }
    std::array<std::uint8_t, 256> table{};
    for (int i = 0; i < 256; ++i) {
        table[static_cast<std::size_t>(i)] = lightLevel(i, offset, slope);
    }
    return Lut(table.data());
}

bool RasterImage::Lut(const std::uint8_t* table) {
    if (!dib || table == nullptr) {
        return false;
    }
    for (std::int64_t y = 0; y < header.biHeight; ++y) {
        if (header.biBitCount == 8) {
            replaceBytes(rowAt(y), static_cast<std::size_t>(header.biWidth), table);
            continue;
        }
        for (std::int64_t x = 0; x < header.biWidth; ++x) {
            BlindSetPixelIndex(x, y, table[BlindGetPixelIndex(x, y)]);
        }
    }
    return true;
}

void RasterImage::Negative() {
    if (!dib) {
        return;
    }
    std::transform(info.bits, info.bits + header.biSizeImage, info.bits,
                   [](std::uint8_t byte) { return static_cast<std::uint8_t>(~byte); });
}
