#pragma once

#include <array>
#include <cstddef>

/// The weights of a one-dimensional filter's taps, and what may be used of them for near sums.
///
/// A sum that is worked out in single precision, with taps of the same weight added before they are
/// multiplied, lies within `nearMargin` of the sum as it is demanded, product by product in double
/// precision, if the taps are few, their weights symmetric, not negative and no more than 1
/// together. Unless it is so close to a half, both are rounded to the same byte. For sums up to
/// 255.1 of n pairs of taps and the middle one the error of single precision is at most 255.1 (n +
/// 2) 2^-24, and that of rounding the demanded sum to single precision and adding a half to it
/// 2^-16: together 0.00014 for 13 taps.
struct TapWeights {
    static constexpr std::size_t mostNearTaps = 13;
    static constexpr float nearMargin = 1.0F / 4096;

    /// Keeps the address of the kernel.
    TapWeights(const double* kernel, std::size_t taps);

    const double* exact;
    std::size_t count;
    bool hasNear;
    std::array<float, mostNearTaps / 2 + 1> near{};  ///< from the first to the middle one
};
