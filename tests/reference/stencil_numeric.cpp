#include "tests/reference/stencil_numeric.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>

namespace reference {

namespace {

bool areClose(float a, float b) {
    const float distance = a - b;
    return std::fabs(distance) < 1e-6F;
}

/// Notices that an iteration comes back to an earlier value: the value of some step is kept and
/// compared with those of ever longer stretches after it.
class CircleDetector {
public:
    bool closes(float value) {
        const auto bits = std::bit_cast<std::uint32_t>(value);
        if (bits == kept_) {
            return true;
        }
        --stepsLeft_;
        if (stepsLeft_ == 0) {
            kept_ = bits;
            stretch_ = stretch_ * 2;
            stepsLeft_ = stretch_;
        }
        return false;
    }

private:
    std::uint32_t kept_ = 0x7FC12345U;  // a NaN that no calculation gives
    std::uint64_t stretch_ = 1;
    std::uint64_t stepsLeft_ = 1;
};

float nextRoot(float x, float y) {
    const float quotient = x / y;
    const float sum = y + quotient;
    return 0.5F * sum;
}

float nextLogarithm(float x, float y) {
    const float overshoot = exponential(y) - x;
    const float step = overshoot / x;
    return y - step;
}

template <typename Next>
std::optional<float> settledIterate(float x, float start, Next next) {
    CircleDetector circle;
    float y = start;
    while (true) {
        const float following = next(x, y);
        if (areClose(following, y)) {
            return y;
        }
        if (std::isnan(following) || circle.closes(following)) {
            return std::nullopt;
        }
        y = following;
    }
}

}  // namespace

std::optional<float> squareRoot(float x) {
    if (x < 0.0F) {
        return -1.0F;
    }
    if (x == 0.0F) {
        return 0.0F;
    }
    return settledIterate(x, x / 2.0F, nextRoot);
}

float exponential(float x) {
    if (x < 0.0F) {
        const double reciprocal = 1.0 / static_cast<double>(exponential(-x));
        return static_cast<float>(reciprocal);
    }
    float sum = 1.0F;
    float term = 1.0F;
    for (int n = 1; n <= 20; ++n) {
        const float factor = x / static_cast<float>(n);
        term = factor * term;
        sum = sum + term;
        if (static_cast<double>(term) < 1e-6) {
            break;
        }
    }
    return sum;
}

std::optional<float> logarithm(float x) {
    if (x <= 0.0F) {
        return -1.0F;
    }
    const float above = x - 1.0F;
    const float below = 1.0F + x;
    return settledIterate(x, above / below, nextLogarithm);
}

std::optional<float> power(float x, float y) {
    if (x == 0.0F) {
        if (y == 0.0F) {
            return 1.0F;
        }
        return y > 0.0F ? 0.0F : -1.0F;
    }
    const std::optional<float> exponent = logarithm(x);
    if (!exponent) {
        return std::nullopt;
    }
    const float product = y * *exponent;
    return exponential(product);
}

int roundedHalfAway(float x) {
    const float moved = x >= 0.0F ? x + 0.5F : x - 0.5F;
    // What has no place in 32 bits is the smallest number that has.
    if (std::isnan(moved) || std::fabs(moved) >= 2147483648.0F) {
        return std::numeric_limits<int>::min();
    }
    return static_cast<int>(moved);
}

}  // namespace reference
