#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>
#include <utility>

#include "lanes/lanes.h"
#include "lanes/native.h"

// From rows of bytes in memory to columns of numbers, whose lanes are the rows, and back.

namespace lanes {

/// Columns that are taken from memory at a time.
inline constexpr int columnsAtOnce = 8;

template <typename Level>
using BytesOf [[gnu::vector_size(16)]] = std::uint8_t;
using Bytes = BytesOf<ThisLevel>;

/// Eight bytes, in the first half of a register.
[[gnu::always_inline]] inline Bytes loadEight(const std::uint8_t* bytes) {
    using Words [[gnu::vector_size(16)]] = std::uint64_t;
    std::uint64_t eight = 0;
    std::memcpy(&eight, bytes, sizeof eight);
    return reinterpret_cast<Bytes>(Words{eight, 0});
}

[[gnu::always_inline]] inline void storeEight(const Bytes& bytes, std::uint8_t* to) {
    std::memcpy(to, &bytes, 8);
}

/// Groups of so many bytes, of one register and of the other in turns, from the group `first` on.
template <int size, int first, int... i>
[[gnu::always_inline]] inline Bytes interleavedBy(Bytes a, Bytes b,
                                                  std::integer_sequence<int, i...> /*bytes*/) {
    return __builtin_shufflevector(
        a, b, (i / size % 2 * 16 + (first + i / size / 2) * size + i % size)...);
}
template <int size>
[[gnu::always_inline]] inline Bytes firstInterleaved(Bytes a, Bytes b) {
    return interleavedBy<size, 0>(a, b, std::make_integer_sequence<int, 16>());
}
template <int size>
[[gnu::always_inline]] inline Bytes lastInterleaved(Bytes a, Bytes b) {
    return interleavedBy<size, 8 / size>(a, b, std::make_integer_sequence<int, 16>());
}

/// Eight rows of eight bytes, in the first halves, as eight columns of eight, two to a register.
[[gnu::always_inline]] inline std::array<Bytes, 4> transposed(const std::array<Bytes, 8>& rows) {
    const Bytes rows01 = firstInterleaved<1>(rows[0], rows[1]);
    const Bytes rows23 = firstInterleaved<1>(rows[2], rows[3]);
    const Bytes rows45 = firstInterleaved<1>(rows[4], rows[5]);
    const Bytes rows67 = firstInterleaved<1>(rows[6], rows[7]);
    const Bytes upperLeft = firstInterleaved<2>(rows01, rows23);
    const Bytes upperRight = lastInterleaved<2>(rows01, rows23);
    const Bytes lowerLeft = firstInterleaved<2>(rows45, rows67);
    const Bytes lowerRight = lastInterleaved<2>(rows45, rows67);
    return {firstInterleaved<4>(upperLeft, lowerLeft), lastInterleaved<4>(upperLeft, lowerLeft),
            firstInterleaved<4>(upperRight, lowerRight), lastInterleaved<4>(upperRight, lowerRight)};
}

/// Columns of eight rows, two to a register.
[[gnu::always_inline]] inline std::array<Bytes, 4> columnPairs(const std::uint8_t* first,
                                                               std::ptrdiff_t distance) {
    std::array<Bytes, 8> rows;
    for (std::size_t r = 0; r < rows.size(); ++r) {
        rows[r] = loadEight(first + static_cast<std::ptrdiff_t>(r) * distance);
    }
    return transposed(rows);
}

/// Groups of so many bytes, each with as many zeros to a number of twice the size.
template <int size>
[[gnu::always_inline]] inline Bytes firstWidened(Bytes bytes) {
    constexpr bool isLittle = std::endian::native == std::endian::little;
    return isLittle ? firstInterleaved<size>(bytes, Bytes{}) : firstInterleaved<size>(Bytes{}, bytes);
}
template <int size>
[[gnu::always_inline]] inline Bytes lastWidened(Bytes bytes) {
    constexpr bool isLittle = std::endian::native == std::endian::little;
    return isLittle ? lastInterleaved<size>(bytes, Bytes{}) : lastInterleaved<size>(Bytes{}, bytes);
}

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

/// The first eight bytes as numbers of four bytes each.
template <int count>
[[gnu::always_inline]] inline Lanes<std::int32_t, count> asIntegers(Bytes bytes) {
    using Some = Lanes<std::int32_t, count>;
    static_assert(count == 8);
    const Bytes words = firstWidened<1>(bytes);
    if constexpr (Some::registers == 1) {
        return {{__builtin_convertvector(reinterpret_cast<Words<16>>(words), typename Some::Register)}};
    } else {
        return {{reinterpret_cast<typename Some::Register>(firstWidened<2>(words)),
                 reinterpret_cast<typename Some::Register>(lastWidened<2>(words))}};
    }
}

template <int count>
[[gnu::always_inline]] inline Lanes<float, count> asFloats(const Lanes<std::int32_t, count>& all) {
    using Some = Lanes<float, count>;
    return registerwise<Some>(
        [](auto x) { return __builtin_convertvector(x, typename Some::Register); }, all);
}

template <typename Some>
[[gnu::always_inline]] inline Some widened(Bytes bytes) {
    if constexpr (std::is_same_v<typename Some::Number, float>) {
        return asFloats(asIntegers<Some::count>(bytes));
    } else {
        return asWords<Some::count>(bytes);
    }
}

/// Eight columns of bytes as numbers: lane r of element c holds byte c of the row that starts
/// r × `distance` bytes behind `first`.
template <typename Some>
[[gnu::always_inline]] inline std::array<Some, columnsAtOnce> loadColumns(const std::uint8_t* first,
                                                                          std::ptrdiff_t distance) {
    const std::array<Bytes, 4> upper = columnPairs(first, distance);
    std::array<Some, columnsAtOnce> columns;
    if constexpr (Some::count == 8) {
        for (std::size_t i = 0; i < upper.size(); ++i) {
            columns[2 * i] = widened<Some>(upper[i]);
            columns[2 * i + 1] = widened<Some>(lastInterleaved<8>(upper[i], upper[i]));
        }
    } else {
        const std::array<Bytes, 4> lower = columnPairs(first + 8 * distance, distance);
        for (std::size_t i = 0; i < upper.size(); ++i) {
            columns[2 * i] = widened<Some>(firstInterleaved<8>(upper[i], lower[i]));
            columns[2 * i + 1] = widened<Some>(lastInterleaved<8>(upper[i], lower[i]));
        }
    }
    return columns;
}

}  // namespace lanes
