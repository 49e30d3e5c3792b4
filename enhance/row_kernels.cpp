#include "enhance/row_kernels.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "lanes/conversion.h"
#include "lanes/lanes.h"
#include "lanes/native.h"

namespace {

using lanes::all;
using lanes::Lanes;
using Floats = Lanes<float, rowBlock>;
using Integers = Lanes<std::int32_t, rowBlock>;
using Doubles = Lanes<double, rowBlock>;

// As truncateToInt does, but that numbers without a place in 32 bits become 0: nothing but the low
// bits of the smallest integer, or whether it is below 0, is asked for here.
[[gnu::always_inline]] inline Integers truncated(const Floats& numbers) {
    const Floats limit = all<Floats>(2147483648.0F);
    const Floats inside = numbers & (limit > numbers) & (numbers > all<Floats>(-2147483648.0F));
    return lanes::registerwise<Integers>(
        [](auto x) { return __builtin_convertvector(x, Integers::Register); }, inside);
}

// A half towards the sign, as my_round adds it.
[[gnu::always_inline]] inline Floats withHalf(const Floats& numbers) {
    const auto isNotNegative = ~(all<Floats>(0.0F) > numbers);
    const Floats half = all<Floats>(0.5F);
    return numbers + ((half & isNotNegative) - (half & ~isNotNegative));
}

[[gnu::always_inline]] inline Doubles exactSums(const float* const* taps, const TapWeights& weights,
                                                std::size_t x) {
    Doubles sums = all<Doubles>(0.0);
    for (std::size_t k = 0; k < weights.count; ++k) {
        sums = lanes::loadDoubles<rowBlock>(taps[k] + x) * all<Doubles>(weights.exact[k]) + sums;
    }
    return sums;
}

void filterExactly(const float* const* taps, const TapWeights& weights, std::size_t x,
                   std::uint8_t* out) {
    const Floats sums = lanes::asFloats(exactSums(taps, weights, x));
    lanes::storeLimited(truncated(withHalf(sums)) & all<Integers>(0xFF), out);
}

[[gnu::always_inline]] inline Floats nearSums(const float* const* taps, const TapWeights& weights,
                                              std::size_t x) {
    const std::size_t middle = weights.count / 2;
    Floats sums = lanes::load<Floats>(taps[middle] + x) * all<Floats>(weights.near[middle]);
    for (std::size_t k = 0; k < middle; ++k) {
        const Floats pair =
            lanes::load<Floats>(taps[k] + x) + lanes::load<Floats>(taps[weights.count - 1 - k] + x);
        sums = sums + pair * all<Floats>(weights.near[k]);
    }
    return sums;
}

// Whether all are as far from a whole number as it takes to be cut off to the right one.
[[gnu::always_inline]] inline bool areCertain(const Floats& numbers, const Integers& wholes) {
    const Floats fractions = numbers - lanes::asFloats(wholes);
    const auto isDoubtful = (all<Floats>(TapWeights::nearMargin) > fractions) |
                            (fractions > all<Floats>(1.0F - TapWeights::nearMargin));
    return !isAny(isDoubtful);
}

[[gnu::always_inline]] inline void filterBlock(const float* const* taps, const TapWeights& weights,
                                               std::size_t x, std::uint8_t* out) {
    if (weights.hasNear) {
        const Floats sums = nearSums(taps, weights, x) + all<Floats>(0.5F);
        const Integers wholes = lanes::integersOf(sums);
        if (areCertain(sums, wholes)) {
            return lanes::storeLimited(wholes, out);
        }
    }
    filterExactly(taps, weights, x, out);
}

void filter(const float* const* taps, const TapWeights& weights, std::size_t width,
            unsigned char* out) {
    std::size_t x = 0;
    for (; x + rowBlock <= width; x += rowBlock) {
        filterBlock(taps, weights, x, out + x);
    }
    if (x < width) {
        std::array<std::uint8_t, rowBlock> rest;
        filterBlock(taps, weights, x, rest.data());
        std::copy_n(rest.data(), width - x, out + x);
    }
}

[[gnu::always_inline]] inline void addWeightedBlock(const std::uint8_t* a, const std::uint8_t* b,
                                                    float weight, std::uint8_t* out) {
    const Floats gained = lanes::loadFloats(a) * all<Floats>(1.0F + weight);
    const Floats lost = lanes::loadFloats(b) * all<Floats>(-weight);
    const Floats sums = withHalf(gained + lost + all<Floats>(0.0F));
    const Integers rounded = truncated(sums);
    lanes::storeLimited(rounded, out);
}

void addWeighted(const unsigned char* a, const unsigned char* b, float weight, std::size_t width,
                 unsigned char* out) {
    std::size_t x = 0;
    for (; x + rowBlock <= width; x += rowBlock) {
        addWeightedBlock(a + x, b + x, weight, out + x);
    }
    if (x < width) {
        std::array<std::uint8_t, rowBlock> restOfA{};
        std::array<std::uint8_t, rowBlock> restOfB{};
        std::copy_n(a + x, width - x, restOfA.data());
        std::copy_n(b + x, width - x, restOfB.data());
        addWeightedBlock(restOfA.data(), restOfB.data(), weight, restOfA.data());
        std::copy_n(restOfA.data(), width - x, out + x);
    }
}

void widen(const unsigned char* bytes, std::size_t width, float* floats) {
    std::size_t x = 0;
    for (; x + rowBlock <= width; x += rowBlock) {
        lanes::store(lanes::loadFloats(bytes + x), floats + x);
    }
    for (; x < width; ++x) {
        floats[x] = static_cast<float>(bytes[x]);
    }
}

}  // namespace

template <>
const RowTable RowKernels<lanes::ThisLevel>::table = {filter, addWeighted, widen};
