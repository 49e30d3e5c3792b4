#include "enhance/piecewise_gamma.h"

#include "enhance/numeric.h"
#include "enhance/row_kernels.h"
#include "lanes/choice.h"

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
    lanes::best<RowKernels>().lookUp(levels, count, table.data(), bent);
}

void enh_piecewise_gamma(QMImage& img, int knee, float gammaLow, float gammaHigh) {
    const std::size_t pixels =
        static_cast<std::size_t>(img.width) * static_cast<std::size_t>(img.height);
    bendTones(img.data, pixels, piecewiseGamma(knee, gammaLow, gammaHigh), img.data);
}
