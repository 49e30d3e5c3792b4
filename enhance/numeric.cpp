#include "enhance/numeric.h"

#include <cmath>

namespace {

constexpr float settled = 1e-6F;

// Takes y to step(y) until the next iterate is less than `settled` away, and returns the one
// before it. Among finitely many floats, iterates that never settle either leave the range of
// numbers or come round: both are noticed, the second by comparing with an iterate that is
// marked anew after 1, 2, 4, ... steps (R. P. Brent, "An improved Monte Carlo factorization
// algorithm", BIT 20, 1980). Then the last iterate is the answer.
template <typename Step>
float settle(float y, Step step) {
    float marked = y;
    unsigned long stepsToMark = 1;
    for (unsigned long steps = 1;; ++steps) {
        const float next = step(y);
        if (settled > myabs(next - y)) {
            return y;
        }
        if (next == marked || !std::isfinite(next)) {
            return next;
        }
        if (steps == stepsToMark) {
            marked = next;
            stepsToMark *= 2;
        }
        y = next;
    }
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
    const float half = x / 2.0F;
    // From a first iterate of 0 (half the smallest number), infinity or NaN none settles.
    if (half == 0.0F || !std::isfinite(half)) {
        return half;
    }
    return settle(half, [x](float y) { return 0.5F * (y + x / y); });
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
    return settle((x - 1.0F) / (1.0F + x), [x](float y) { return y - (my_exp(y) - x) / x; });
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
