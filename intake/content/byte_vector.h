#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace intake::content {

/// Sixteen bytes that are worked on at a time, by the compiler's own vector types: the text is the
/// same for every processor.
using ByteVector = std::uint8_t __attribute__((vector_size(16)));
inline constexpr std::size_t vectorBytes = sizeof(ByteVector);

inline ByteVector load(const std::uint8_t* from) {
    ByteVector bytes;
    std::memcpy(&bytes, from, vectorBytes);
    return bytes;
}

inline void store(const ByteVector& bytes, std::uint8_t* to) {
    std::memcpy(to, &bytes, vectorBytes);
}

inline ByteVector lesser(const ByteVector& a, const ByteVector& b) {
    return a < b ? a : b;
}

inline ByteVector greater(const ByteVector& a, const ByteVector& b) {
    return a > b ? a : b;
}

inline ByteVector difference(const ByteVector& a, const ByteVector& b) {
    return greater(a, b) - lesser(a, b);
}

/// 255 where a <= b, else 0.
inline ByteVector isAtMost(const ByteVector& a, const ByteVector& b) {
    return reinterpret_cast<ByteVector>(lesser(a, b) == a);
}

inline ByteVector splat(std::uint8_t value) {
    return ByteVector{} + value;
}

/// Eight of one byte, then eight of the other.
inline ByteVector halves(std::uint8_t first, std::uint8_t second) {
    std::uint8_t bytes[vectorBytes];
    std::memset(bytes, first, vectorBytes / 2);
    std::memset(bytes + vectorBytes / 2, second, vectorBytes / 2);
    return load(bytes);
}

/// Brings the eight bytes of each half together in the first of them, by an operation on two
/// vectors in any order.
template <typename Operation>
ByteVector reduceHalves(ByteVector bytes, Operation operation) {
    using Words = std::uint64_t __attribute__((vector_size(16)));
    for (const int bits : {32, 16, 8}) {
        const Words words = reinterpret_cast<Words>(bytes) >> bits;
        bytes = operation(bytes, reinterpret_cast<ByteVector>(words));
    }
    return bytes;
}

}  // namespace intake::content
