#include "tests/reference/tone.h"

#include <algorithm>

namespace reference {

namespace {

std::uint8_t lightLevel(int level, float slope, float middle) {
    float value = static_cast<float>(level - 128) * slope;
    value = value + middle;
    value = value + 0.5F;
    const auto whole = static_cast<long long>(value);
    return static_cast<std::uint8_t>(std::clamp(whole, 0LL, 255LL));
}

}  // namespace

ToneTable lightTable(int brightness, int contrast) {
    const float slope = static_cast<float>(contrast + 100) / 100.0F;
    const auto middle = static_cast<float>(brightness + 128);
    ToneTable table{};
    for (int level = 0; level < 256; ++level) {
        table[static_cast<std::size_t>(level)] = lightLevel(level, slope, middle);
    }
    return table;
}

void applyTable(GreyImage& image, const ToneTable& table) {
    for (std::size_t y = 0; y < image.height; ++y) {
        for (std::size_t x = 0; x < image.width; ++x) {
            std::uint8_t& pixel = image.bytes[y * image.stride + x];
            pixel = table[pixel];
        }
    }
}

void light(GreyImage& image, int brightness, int contrast) {
    applyTable(image, lightTable(brightness, contrast));
}

}  // namespace reference
