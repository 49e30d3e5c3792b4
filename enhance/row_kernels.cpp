#include "enhance/row_kernels.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

#include "lanes/byte_table.h"
#include "lanes/conversion.h"
#include "lanes/lanes.h"
#include "lanes/native.h"

namespace {

using lanes::all;
using lanes::Lanes;
using Floats = Lanes<float, rowBlock>;
using Integers = Lanes<std::int32_t, rowBlock>;
using Doubles = Lanes<double, rowBlock>;
using Words = Lanes<std::int16_t, rowBlock>;
using Wholes = lanes::NearestWholes<rowBlock>;

[[gnu::always_inline]] inline Floats asFloats(const std::uint8_t* bytes) {
    return lanes::asFloats<Floats::count>(lanes::loadBytes(bytes));
}

// As truncateToInt does, but that numbers without a place in 32 bits become 0: nothing but the low
// bits of the smallest integer, or whether it is below 0, is asked for here.
[[gnu::always_inline]] inline Integers truncated(const Floats& numbers) {
    const Floats limit = all<Floats>(2147483648.0F);
    const Floats inside = numbers & (limit > numbers) & (numbers > all<Floats>(-2147483648.0F));
    return lanes::integersOf(inside);
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

[[gnu::always_inline]] inline void storeBytes(const Integers& bytes, std::uint8_t* out) {
    lanes::storeLimited(bytes, out);
}
[[gnu::always_inline]] inline void storeBytes(const Integers& bytes, float* out) {
    lanes::store(lanes::asFloats(bytes), out);
}

[[gnu::always_inline]] inline void storeBytes(const Wholes& wholes, std::uint8_t* out) {
    lanes::storeLimited(wholes.integers(), out);
}
[[gnu::always_inline]] inline void storeBytes(const Wholes& wholes, float* out) {
    lanes::store(wholes.floats(), out);
}

template <typename Byte>
void filterExactly(const float* const* taps, const TapWeights& weights, std::size_t x, Byte* out) {
    const Floats sums = lanes::asFloats(exactSums(taps, weights, x));
    storeBytes(truncated(withHalf(sums)) & all<Integers>(0xFF), out);
}

// Whether all are as far from halves as it takes to be rounded as demanded.
[[gnu::always_inline]] inline bool areCertain(const Floats& numbers, const Floats& wholes) {
    const Floats distances = lanes::magnitudes(numbers - wholes);
    return !isAny(distances > all<Floats>(0.5F - TapWeights::nearMargin));
}

class ExactBlocks {
public:
    ExactBlocks(const float* const* taps, const TapWeights& weights)
        : taps_(taps), weights_(weights) {}

    template <typename Byte>
    void filter(std::size_t x, Byte* out) const {
        filterExactly(taps_, weights_, x, out);
    }

private:
    const float* const* taps_;
    const TapWeights& weights_;
};

// Has taps and weights of its own: for all that the compiler knows those of the caller may be
// overwritten with the bytes of a row.
template <std::size_t pairs>
class NearBlocks {
public:
    [[gnu::always_inline]] NearBlocks(const float* const* taps, const TapWeights& weights)
        : exact_(taps, weights) {
        for (std::size_t k = 0; k <= pairs; ++k) {
            weights_[k] = all<Floats>(weights.near[k]);
        }
        for (std::size_t k = 0; k <= 2 * pairs; ++k) {
            taps_[k] = taps[k];
        }
    }

    template <typename Byte>
    [[gnu::always_inline]] void filter(std::size_t x, Byte* out) const {
        const Floats sums = nearSums(x, std::make_index_sequence<pairs>());
        const Wholes wholes(sums);
        if (areCertain(sums, wholes.floats())) {
            storeBytes(wholes, out);
        } else {
            exact_.filter(x, out);
        }
    }

private:
    [[gnu::always_inline]] Floats tap(std::size_t k, std::size_t x) const {
        return lanes::load<Floats>(taps_[k] + x);
    }

    template <std::size_t... k>
    [[gnu::always_inline]] Floats nearSums(std::size_t x,
                                           std::index_sequence<k...> /*pairs*/) const {
        // Two sums, so that half as many additions wait for each other.
        Floats sums[2] = {tap(pairs, x) * weights_[pairs], all<Floats>(0.0F)};
        ((sums[k % 2] = nearlyAdded(tap(k, x) + tap(2 * pairs - k, x), weights_[k], sums[k % 2])),
         ...);
        return sums[0] + sums[1];
    }

    Floats weights_[pairs + 1];
    const float* taps_[2 * pairs + 1];
    ExactBlocks exact_;
};

template <typename Blocks, typename Byte>
void filterRow(const float* const* taps, const TapWeights& weights, std::size_t width, Byte* out) {
    const Blocks blocks(taps, weights);
    std::size_t x = 0;
    for (; x + rowBlock <= width; x += rowBlock) {
        blocks.filter(x, out + x);
    }
    if (x < width) {
        std::array<Byte, rowBlock> rest;
        blocks.filter(x, rest.data());
        std::copy_n(rest.data(), width - x, out + x);
    }
}

template <typename Byte, std::size_t... pairs>
constexpr auto nearFilters(std::index_sequence<pairs...> /*all*/) {
    return std::array{filterRow<NearBlocks<pairs>, Byte>...};
}

template <typename Byte>
void filter(const float* const* taps, const TapWeights& weights, std::size_t width, Byte* out) {
    constexpr auto byPairs =
        nearFilters<Byte>(std::make_index_sequence<TapWeights::mostNearTaps / 2 + 1>());
    const auto row = weights.hasNear ? byPairs[weights.count / 2] : filterRow<ExactBlocks, Byte>;
    row(taps, weights, width, out);
}

[[gnu::always_inline]] inline Floats weightedSums(const std::uint8_t* a, const std::uint8_t* b,
                                                  float weight) {
    const Floats gained = asFloats(a) * all<Floats>(1.0F + weight);
    const Floats lost = asFloats(b) * all<Floats>(-weight);
    return gained + lost;
}

// With a whole weight all is whole, and exact in single precision: in as many bits as hold it,
// then.
struct WholeSums {
    static constexpr float mostWeight = 127.0F;

    [[gnu::always_inline]] static void add(const std::uint8_t* a, const std::uint8_t* b,
                                           float weight, std::uint8_t* out) {
        const Words kept = lanes::asWords<rowBlock>(lanes::loadBytes(a));
        const Words lost = lanes::asWords<rowBlock>(lanes::loadBytes(b));
        const Words factor = all<Words>(static_cast<std::int16_t>(weight));
        lanes::storeLimited(kept + (kept - lost) * factor, out);
    }
};

// Sums whose whole part has a place in 32 bits whatever the levels. Below 0 it does not matter how
// they are rounded.
struct SmallSums {
    static constexpr float mostWeight = 4096.0F;

    [[gnu::always_inline]] static void add(const std::uint8_t* a, const std::uint8_t* b,
                                           float weight, std::uint8_t* out) {
        const Floats sums = weightedSums(a, b, weight) + all<Floats>(0.5F);
        lanes::storeLimited(lanes::integersOf(sums), out);
    }
};

struct AnySums {
    [[gnu::always_inline]] static void add(const std::uint8_t* a, const std::uint8_t* b,
                                           float weight, std::uint8_t* out) {
        lanes::storeLimited(truncated(withHalf(weightedSums(a, b, weight))), out);
    }
};

template <typename Sums>
void addWeightedRow(const unsigned char* a, const unsigned char* b, float weight, std::size_t width,
                    unsigned char* out) {
    std::size_t x = 0;
    for (; x + rowBlock <= width; x += rowBlock) {
        Sums::add(a + x, b + x, weight, out + x);
    }
    if (x < width) {
        std::array<std::uint8_t, rowBlock> restOfA{};
        std::array<std::uint8_t, rowBlock> restOfB{};
        std::copy_n(a + x, width - x, restOfA.data());
        std::copy_n(b + x, width - x, restOfB.data());
        Sums::add(restOfA.data(), restOfB.data(), weight, restOfA.data());
        std::copy_n(restOfA.data(), width - x, out + x);
    }
}

void addWeighted(const unsigned char* a, const unsigned char* b, float weight, std::size_t width,
                 unsigned char* out) {
    const auto isUpTo = [weight](float most) { return weight <= most && weight >= -most; };
    if (isUpTo(WholeSums::mostWeight) && weight == static_cast<float>(static_cast<int>(weight))) {
        addWeightedRow<WholeSums>(a, b, weight, width, out);
    } else if (isUpTo(SmallSums::mostWeight)) {
        addWeightedRow<SmallSums>(a, b, weight, width, out);
    } else {
        addWeightedRow<AnySums>(a, b, weight, width, out);
    }
}

void lookUp(const unsigned char* bytes, std::size_t width, const unsigned char* table,
            unsigned char* out) {
    constexpr std::size_t block = lanes::ByteTable::block;
    const lanes::ByteTable inRegisters(table);
    std::size_t x = 0;
    for (; x + block <= width; x += block) {
        inRegisters.lookUp(bytes + x, out + x);
    }
    for (; x < width; ++x) {
        out[x] = table[bytes[x]];
    }
}

void widen(const unsigned char* bytes, std::size_t width, float* floats) {
    std::size_t x = 0;
    for (; x + rowBlock <= width; x += rowBlock) {
        lanes::store(asFloats(bytes + x), floats + x);
    }
    for (; x < width; ++x) {
        floats[x] = static_cast<float>(bytes[x]);
    }
}

}  // namespace

template <>
const RowTable RowKernels<lanes::ThisLevel>::table = {filter<unsigned char>, filter<float>,
                                                      addWeighted, lookUp, widen};
