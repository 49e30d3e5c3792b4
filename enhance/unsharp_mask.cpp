#include "enhance/unsharp_mask.h"

#include "enhance/gaussian.h"
#include "enhance/numeric.h"

QMImage add_Weighted(const QMImage& a, const QMImage& b, float weight) {
    QMImage result(a);
    const std::size_t pixels =
        static_cast<std::size_t>(a.width) * static_cast<std::size_t>(a.height);
    for (std::size_t i = 0; i < pixels; ++i) {
        const float sum = static_cast<float>(a.data[i]) * (1.0F + weight) +
                          static_cast<float>(b.data[i]) * (-weight) + 0.0F;
        result.data[i] = static_cast<unsigned char>(myClamp(my_round(sum), 0, 255));
    }
    return result;
}

QMImage enh_unsharp_mask(const QMImage& src, float amount, int radius) {
    constexpr double sigma = 3.0;
    const float weight = amount / 100.0F;
    const QMImage blurred = enh_gaussian_filter_fast(src, radius, sigma);
    return add_Weighted(src, blurred, weight);
}
