#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <utility>

#include "lanes/bytes.h"
#include "lanes/lanes.h"
#include "lanes/native.h"

// From numbers of one kind to those of another.

namespace lanes {

/// Bytes as numbers of two bytes each; the first eight or all sixteen of them.
template <int count>
[[gnu::always_inline]] inline Lanes<std::int16_t, count> asWords(Bytes bytes) {
    using Some = Lanes<std::int16_t, count>;
    if constexpr (count == 8) {
        return {{reinterpret_cast<Words<16>>(firstWidened<1>(bytes))}};
    } else if constexpr (Some::registers == 1) {
        return {{__builtin_convertvector(bytes, typename Some::Register)}};
    } else {
        return {{reinterpret_cast<Words<16>>(firstWidened<1>(bytes)),
                 reinterpret_cast<Words<16>>(lastWidened<1>(bytes))}};
    }
}

template <int count>
[[gnu::always_inline]] inline Lanes<float, count> asFloats(const Lanes<std::int32_t, count>& all) {
    using Some = Lanes<float, count>;
    return registerwise<Some>(
        [](auto x) { return __builtin_convertvector(x, typename Some::Register); }, all);
}

template <int count>
[[gnu::always_inline]] inline Lanes<std::int32_t, count> integersOf(
    const Lanes<float, count>& numbers) {
    using Some = Lanes<std::int32_t, count>;
    return registerwise<Some>(
        [](auto x) { return __builtin_convertvector(x, typename Some::Register); }, numbers);
}

/// The whole numbers next to floats from 0 to 255, a half to the even one: with this added there
/// are no places left behind the point, and the number stands in the low bits.
template <int count>
class NearestWholes {
public:
    [[gnu::always_inline]] explicit NearestWholes(const Lanes<float, count>& numbers)
        : shifted_(numbers + all<Lanes<float, count>>(shift)) {}

    [[gnu::always_inline]] Lanes<float, count> floats() const {
        return shifted_ - all<Lanes<float, count>>(shift);
    }
    [[gnu::always_inline]] Lanes<std::int32_t, count> integers() const {
        using Some = Lanes<std::int32_t, count>;
        return registerwise<Some>(
                   [](auto x) { return reinterpret_cast<typename Some::Register>(x); }, shifted_) &
               all<Some>(0xFF);
    }

private:
    static constexpr float shift = 12582912.0F;  // 1.5 * 2^23
    Lanes<float, count> shifted_;
};

/// Without their signs.
template <int count>
[[gnu::always_inline]] inline Lanes<float, count> magnitudes(const Lanes<float, count>& numbers) {
    return numbers & all<Lanes<std::int32_t, count>>(0x7FFFFFFF);
}

/// The first eight bytes as floats, or all sixteen.
template <int count>
[[gnu::always_inline]] inline Lanes<float, count> asFloats(Bytes bytes) {
    const Lanes<float, 8> first = asFloats(asIntegers(bytes));
    if constexpr (count == 8) {
        return first;
    } else {
        const Lanes<float, 8> last = asFloats(asIntegers(lastInterleaved<8>(bytes, bytes)));
        Lanes<float, count> result;
        for (int i = 0; i < first.registers; ++i) {
            result.part[i] = first.part[i];
            result.part[first.registers + i] = last.part[i];
        }
        return result;
    }
}

/// Floats in memory as doubles.
template <int count>
[[gnu::always_inline]] inline Lanes<double, count> loadDoubles(const float* numbers) {
    using Some = Lanes<double, count>;
    using Half [[gnu::vector_size(ThisLevel::registerBytes / 2)]] = float;
    Some result;
    for (int i = 0; i < Some::registers; ++i) {
        Half half;
        std::memcpy(&half, numbers + i * Some::perRegister, sizeof half);
        result.part[i] = __builtin_convertvector(half, typename Some::Register);
    }
    return result;
}

template <typename Register, typename Half, int... i>
[[gnu::always_inline]] inline Register joined(Half first, Half last,
                                              std::integer_sequence<int, i...> /*numbers*/) {
    return __builtin_shufflevector(first, last, i...);
}

/// Doubles, each rounded to a float.
template <int count>
[[gnu::always_inline]] inline Lanes<float, count> asFloats(const Lanes<double, count>& numbers) {
    using Some = Lanes<float, count>;
    using Half [[gnu::vector_size(ThisLevel::registerBytes / 2)]] = float;
    Some result;
    for (int i = 0; i < Some::registers; ++i) {
        result.part[i] =
            joined<typename Some::Register>(__builtin_convertvector(numbers.part[2 * i], Half),
                                            __builtin_convertvector(numbers.part[2 * i + 1], Half),
                                            std::make_integer_sequence<int, Some::perRegister>());
    }
    return result;
}

/// Stores sixteen numbers as bytes, limited to 0..255.
template <typename Number>
[[gnu::always_inline]] inline void storeLimited(const Lanes<Number, 16>& numbers,
                                                std::uint8_t* bytes) {
    const Bytes limited = limitedBytes(numbers);
    std::memcpy(bytes, &limited, sizeof limited);
}

}  // namespace lanes
