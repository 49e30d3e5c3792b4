#pragma once

#include <bit>
#include <cstdint>
#include <cstring>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

// Eight pixels of one byte each, worked on as one 64-bit word. The first pixel is in the lowest
// byte on every machine.

using ByteWord = std::uint64_t;

constexpr ByteWord inEachByte(std::uint8_t byte) {
    return ByteWord{0x0101010101010101} * byte;
}

constexpr ByteWord inMachineOrder(ByteWord word) {
    return std::endian::native == std::endian::little ? word : __builtin_bswap64(word);
}

inline ByteWord loadWord(const std::uint8_t* bytes) {
    ByteWord word = 0;
    std::memcpy(&word, bytes, sizeof word);
    return inMachineOrder(word);
}

/// Fewer than eight bytes; zeros behind them.
inline ByteWord loadPartOfWord(const std::uint8_t* bytes, std::size_t count) {
    ByteWord word = 0;
    std::memcpy(&word, bytes, count);
    return inMachineOrder(word);
}

inline void storeWord(ByteWord word, std::uint8_t* bytes) {
    word = inMachineOrder(word);
    std::memcpy(bytes, &word, sizeof word);
}

inline void storePartOfWord(ByteWord word, std::uint8_t* bytes, std::size_t count) {
    word = inMachineOrder(word);
    std::memcpy(bytes, &word, count);
}

/// The highest bit of each byte, the first pixel's in the highest bit.
constexpr std::uint8_t packedTopBits(ByteWord word) {
    return static_cast<std::uint8_t>(((word >> 7 & inEachByte(1)) * 0x8040201008040201) >> 56);
}

/// The opposite: bytes of 1 and 0, the highest bit in the first one.
constexpr ByteWord unpackedBits(std::uint8_t bits) {
    const ByteWord oneBitEach = inEachByte(bits) & 0x0102040810204080;
    return (oneBitEach + inEachByte(0x7F)) >> 7 & inEachByte(1);
}

/// Sets the highest bit of each byte that is not below its limit.
constexpr ByteWord isAtLeast(ByteWord word, ByteWord limits) {
    constexpr ByteWord top = inEachByte(0x80);
    const ByteWord lowBitsReach = (word | top) - (limits & ~top);
    return ((word & ~limits) | (~(word ^ limits) & lowBitsReach)) & top;
}

/// Sets the highest bit of each byte that is 0.
constexpr ByteWord isZero(ByteWord word) {
    constexpr ByteWord low = inEachByte(0x7F);
    return ~(((word & low) + low) | word) & ~low;
}

/// Sixteen pixels: one SSE2 register where there is SSE2, two words elsewhere.
struct ByteBlock {
    static constexpr std::size_t bytes = 16;

#if defined(__SSE2__)
    __m128i value;
#else
    ByteWord first;
    ByteWord second;
#endif
};

#if defined(__SSE2__)

inline ByteBlock loadBlock(const std::uint8_t* bytes) {
    return {_mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes))};
}

inline ByteBlock repeatedWord(ByteWord word) {
    return {_mm_set1_epi64x(static_cast<std::int64_t>(word))};
}

/// Marks each byte that is not below its limit.
inline ByteBlock isAtLeast(ByteBlock block, ByteBlock limits) {
    return {_mm_cmpeq_epi8(_mm_max_epu8(block.value, limits.value), block.value)};
}

/// Marks each byte that is 0.
inline ByteBlock isZero(ByteBlock block) {
    return {_mm_cmpeq_epi8(block.value, _mm_setzero_si128())};
}

/// The marks of the first eight pixels in the lower byte, those of the others in the upper one;
/// in both the first pixel's in the highest bit.
inline unsigned packedMarks(ByteBlock marks) {
    const __m128i places = _mm_set1_epi64x(0x0102040810204080);
    const __m128i sums = _mm_sad_epu8(_mm_and_si128(marks.value, places), _mm_setzero_si128());
    return static_cast<unsigned>(_mm_cvtsi128_si32(sums) | _mm_extract_epi16(sums, 4) << 8);
}

#else

inline ByteBlock loadBlock(const std::uint8_t* bytes) {
    return {loadWord(bytes), loadWord(bytes + 8)};
}

inline ByteBlock repeatedWord(ByteWord word) {
    return {word, word};
}

/// Marks each byte that is not below its limit.
inline ByteBlock isAtLeast(ByteBlock block, ByteBlock limits) {
    return {isAtLeast(block.first, limits.first), isAtLeast(block.second, limits.second)};
}

/// Marks each byte that is 0.
inline ByteBlock isZero(ByteBlock block) {
    return {isZero(block.first), isZero(block.second)};
}

/// The marks of the first eight pixels in the lower byte, those of the others in the upper one;
/// in both the first pixel's in the highest bit.
inline unsigned packedMarks(ByteBlock marks) {
    return packedTopBits(marks.first) | static_cast<unsigned>(packedTopBits(marks.second)) << 8;
}

#endif
