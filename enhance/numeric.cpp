#include "enhance/numeric.h"

#include <cmath>
#include <limits>

namespace {

constexpr float settled = 1e-6F;

bool isSettled(float y, float next) {
    return settled > myabs(next - y);
}

}  // namespace

float myabs(float x) {
    return 0.0F > x ? -x : x;
}

float my_sqrt(float x) {
    if (0.0F > x) {
        return -1.0F;
    }
    if (x == 0.0F) {
        return 0.0F;
    }
    float y = x / 2.0F;
    // From a first iterate of 0 (half the smallest number), infinity or NaN none settles.
    if (y == 0.0F || !std::isfinite(y)) {
        return y;
    }
    for (;;) {
        const float next = 0.5F * (y + x / y);
        if (isSettled(y, next)) {
            return y;
        }
        y = next;
    }
}

float my_exp(float x) {
    if (0.0F > x) {
        return static_cast<float>(1.0 / static_cast<double>(my_exp(-x)));
    }
    constexpr int mostTerms = 20;
    float sum = 1.0F;
    float term = 1.0F;
    for (int n = 1; n <= mostTerms; ++n) {
        term = (x / static_cast<float>(n)) * term;
        sum = sum + term;
        if (static_cast<double>(term) < 1e-6) {
            break;
        }
    }
    return sum;
}

float my_ln(float x) {
    if (0.0F >= x) {
        return -1.0F;
    }
    if (!std::isfinite(x)) {
        return x;
    }
    float y = (x - 1.0F) / (1.0F + x);
    for (;;) {
        const float next = y - (my_exp(y) - x) / x;
        if (!std::isfinite(next)) {
            return -std::numeric_limits<float>::infinity();
        }
        if (isSettled(y, next)) {
            return y;
        }
        y = next;
    }
}

float my_pow(float x, float y) {
    if (x == 0.0F) {
        if (y == 0.0F) {
            return 1.0F;
        }
        return y > 0.0F ? 0.0F : -1.0F;
    }
    if (0.0F > x) {
        const float fraction = y - static_cast<float>(truncateToInt(y));
        if (!(fraction == 0.0F)) {
            return -1.0F;
        }
    }
    return my_exp(y * my_ln(x));
}
