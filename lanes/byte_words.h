#pragma once

#include <bit>
#include <cstdint>
#include <cstring>

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
