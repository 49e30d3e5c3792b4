#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "lanes/level.h"

#ifndef LANES_PLAIN
#if defined(__AVX2__)
#include <immintrin.h>
#elif defined(__aarch64__)
#include <arm_neon.h>
#endif
#endif

// Tables of 256 bytes, looked up for many bytes at once where the processor can look up in
// registers, and one by one elsewhere.

namespace lanes {

#if !defined(LANES_PLAIN) && defined(__AVX2__)

/// Sixteen tables of sixteen bytes are looked up by the lower half of the level; its upper bits
/// choose among what they give, a bit at a time.
template <typename Level>
class ByteTableOf {
public:
    static constexpr std::size_t block = 32;  ///< bytes that are looked up at once

    /// `table` has 256 bytes.
    [[gnu::always_inline]] explicit ByteTableOf(const std::uint8_t* table) {
        for (int i = 0; i < 16; ++i) {
            __m128i part;
            std::memcpy(&part, table + std::ptrdiff_t{16} * i, sizeof part);
            parts_[i] = _mm256_broadcastsi128_si256(part);
        }
    }

    [[gnu::always_inline]] void lookUp(const std::uint8_t* levels, std::uint8_t* out) const {
        __m256i level;
        std::memcpy(&level, levels, sizeof level);
        // A byte is chosen by its highest bit.
        const Choice choice = {_mm256_and_si256(level, _mm256_set1_epi8(0x0F)),
                               {_mm256_slli_epi16(level, 3), _mm256_slli_epi16(level, 2),
                                _mm256_slli_epi16(level, 1), level}};
        const __m256i found = fromParts<4>(choice, 0);
        std::memcpy(out, &found, sizeof found);
    }

private:
    struct Choice {
        __m256i place;   ///< in a part
        __m256i bit[4];  ///< of the part's number, the lowest first
    };

    /// Of as many parts as `bits` have numbers for, from the part `first` on.
    template <int bits>
    [[gnu::always_inline]] __m256i fromParts(const Choice& choice, int first) const {
        if constexpr (bits == 0) {
            return _mm256_shuffle_epi8(parts_[first], choice.place);
        } else {
            return _mm256_blendv_epi8(fromParts<bits - 1>(choice, first),
                                      fromParts<bits - 1>(choice, first + (1 << (bits - 1))),
                                      choice.bit[bits - 1]);
        }
    }

    __m256i parts_[16];
};

#elif !defined(LANES_PLAIN) && defined(__aarch64__)

/// Four tables of 64 bytes; what lies outside one of them leaves what the others have given.
template <typename Level>
class ByteTableOf {
public:
    static constexpr std::size_t block = 16;

    [[gnu::always_inline]] explicit ByteTableOf(const std::uint8_t* table) {
        for (int i = 0; i < 4; ++i) {
            for (int k = 0; k < 4; ++k) {
                parts_[i].val[k] =
                    vld1q_u8(table + std::ptrdiff_t{64} * i + std::ptrdiff_t{16} * k);
            }
        }
    }

    [[gnu::always_inline]] void lookUp(const std::uint8_t* levels, std::uint8_t* out) const {
        uint8x16_t level = vld1q_u8(levels);
        uint8x16_t found = vqtbl4q_u8(parts_[0], level);
        for (int i = 1; i < 4; ++i) {
            level = vsubq_u8(level, vdupq_n_u8(64));
            found = vqtbx4q_u8(found, parts_[i], level);
        }
        vst1q_u8(out, found);
    }

private:
    uint8x16x4_t parts_[4];
};

#else

template <typename Level>
class ByteTableOf {
public:
    static constexpr std::size_t block = 8;

    [[gnu::always_inline]] explicit ByteTableOf(const std::uint8_t* table) : table_(table) {}

    // Written out by the compiler.
    [[gnu::always_inline]] void lookUp(const std::uint8_t* levels, std::uint8_t* out) const {
        for (std::size_t i = 0; i < block; ++i) {
            out[i] = table_[levels[i]];
        }
    }

private:
    const std::uint8_t* table_;
};

#endif

using ByteTable = ByteTableOf<ThisLevel>;

}  // namespace lanes
