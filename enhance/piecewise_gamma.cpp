#include "enhance/piecewise_gamma.h"

#include <algorithm>

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

ToneTable piecewiseGamma(int knee, float gammaLow, float gammaHigh) {
    ToneTable table{};
    for (int level = 0; level < 256; ++level) {
        table[static_cast<std::size_t>(level)] = bentLevel(level, knee, gammaLow, gammaHigh);
    }
    return table;
}

void bendTones(const unsigned char* levels, std::size_t count, const ToneTable& table,
               unsigned char* bent) {
    // Eight at a time, which the compiler writes out.
    for (; count >= 8; count -= 8, levels += 8, bent += 8) {
        for (int i = 0; i < 8; ++i) {
            bent[i] = table[levels[i]];
        }
    }
    std::transform(levels, levels + count, bent,
                   [&table](unsigned char level) { return table[level]; });
}

void enh_piecewise_gamma(QMImage& img, int knee, float gammaLow, float gammaHigh) {
    const std::size_t pixels =
        static_cast<std::size_t>(img.width) * static_cast<std::size_t>(img.height);
    bendTones(img.data, pixels, piecewiseGamma(knee, gammaLow, gammaHigh), img.data);
}
