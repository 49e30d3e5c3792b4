#include "enhance/tap_weights.h"

#include <algorithm>
#include <numeric>

namespace {

bool isSymmetric(const double* kernel, std::size_t count) {
    return std::equal(kernel, kernel + count / 2, std::make_reverse_iterator(kernel + count));
}

bool allowsNear(const double* kernel, std::size_t count) {
    constexpr double most = 1.0001;
    return count % 2 == 1 && count <= TapWeights::mostNearTaps && isSymmetric(kernel, count) &&
           std::all_of(kernel, kernel + count, [](double weight) { return weight >= 0; }) &&
           std::accumulate(kernel, kernel + count, 0.0) <= most;
}

}  // namespace

TapWeights::TapWeights(const double* kernel, std::size_t taps)
    : exact(kernel), count(taps), hasNear(allowsNear(kernel, taps)) {
    if (hasNear) {
        std::transform(kernel, kernel + count / 2 + 1, near.begin(),
                       [](double weight) { return static_cast<float>(weight); });
    }
}
