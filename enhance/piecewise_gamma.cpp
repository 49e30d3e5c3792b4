#include "enhance/piecewise_gamma.h"

#include <array>

#include "enhance/numeric.h"

namespace {

unsigned char bentLevel(int level, int knee, float gammaLow, float gammaHigh) {
    const auto bend = [](float value, float range, float gamma) {
        return my_pow(value / range, gamma) * range;
    };
    const auto i = static_cast<float>(level);
    const auto low = static_cast<float>(knee);
    const auto high = static_cast<float>(255LL - knee);
    if (level < knee) {
        return static_cast<unsigned char>(truncateToInt(bend(i, low, gammaLow)));
    }
    // With the knee at the last level there is no upper piece to divide by.
    if (knee == 255) {
        return 255;
    }
    return static_cast<unsigned char>(truncateToInt(bend(i - low, high, gammaHigh) + low));
}

}  // namespace

void enh_piecewise_gamma(QMImage& img, int knee, float gammaLow, float gammaHigh) {
    std::array<unsigned char, 256> table{};
    for (int level = 0; level < 256; ++level) {
        table[static_cast<std::size_t>(level)] = bentLevel(level, knee, gammaLow, gammaHigh);
    }
    const std::size_t pixels =
        static_cast<std::size_t>(img.width) * static_cast<std::size_t>(img.height);
    for (std::size_t i = 0; i < pixels; ++i) {
        img.data[i] = table[img.data[i]];
    }
}
