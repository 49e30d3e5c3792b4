#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <utility>

#include "lanes/level.h"

// Sixteen bytes at a time, whatever the level: what is taken from rows of pixels.

namespace lanes {

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

[[gnu::always_inline]] inline Bytes loadBytes(const std::uint8_t* from) {
    Bytes bytes;
    std::memcpy(&bytes, from, sizeof bytes);
    return bytes;
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

/// Groups of so many bytes, each with as many zeros to a number of twice the size.
template <int size>
[[gnu::always_inline]] inline Bytes firstWidened(Bytes bytes) {
    constexpr bool isLittle = std::endian::native == std::endian::little;
    return isLittle ? firstInterleaved<size>(bytes, Bytes{})
                    : firstInterleaved<size>(Bytes{}, bytes);
}
template <int size>
[[gnu::always_inline]] inline Bytes lastWidened(Bytes bytes) {
    constexpr bool isLittle = std::endian::native == std::endian::little;
    return isLittle ? lastInterleaved<size>(bytes, Bytes{}) : lastInterleaved<size>(Bytes{}, bytes);
}

}  // namespace lanes
