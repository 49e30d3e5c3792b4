#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <type_traits>
#include <utility>

#include "lanes/bytes.h"
#include "lanes/conversion.h"
#include "lanes/lanes.h"

// From rows of bytes in memory to columns of numbers, whose lanes are the rows, and back.

namespace lanes {

/// Columns that are taken from memory at a time.
inline constexpr int columnsAtOnce = 8;

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
            firstInterleaved<4>(upperRight, lowerRight),
            lastInterleaved<4>(upperRight, lowerRight)};
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

template <typename Some>
[[gnu::always_inline]] inline Some widened(Bytes bytes) {
    if constexpr (std::is_same_v<typename Some::Number, float>) {
        return asFloats<Some::count>(bytes);
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
