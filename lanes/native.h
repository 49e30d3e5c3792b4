#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "lanes/byte_words.h"
#include "lanes/bytes.h"
#include "lanes/lanes.h"

#ifndef LANES_PLAIN
#if defined(__AVX2__)
#include <immintrin.h>
#elif defined(__SSE2__)
#include <emmintrin.h>
#elif defined(__ARM_NEON)
#include <arm_neon.h>
#endif
#endif

// The few operations that compilers do not find in plain text: one instruction of the processor's
// where it has one, and the plain text elsewhere. With LANES_PLAIN everything is plain text.

namespace lanes {

using EightIntegers = Lanes<std::int32_t, 8>;
using SixteenIntegers = Lanes<std::int32_t, 16>;
using SixteenFloats = Lanes<float, 16>;
using SixteenWords = Lanes<std::int16_t, 16>;

template <std::size_t bytes>
using Words [[gnu::vector_size(bytes)]] = std::int16_t;

using WordRegister = Words<ThisLevel::registerBytes>;
using IntegerRegister = EightIntegers::Register;

#if !defined(LANES_PLAIN) && defined(__AVX2__)

using FloatRegister = SixteenFloats::Register;

/// a × b + c, rounded once or twice: only for what is worked out nearly.
[[gnu::always_inline]] inline FloatRegister nearlyAdded(FloatRegister a, FloatRegister b,
                                                        FloatRegister c) {
    return reinterpret_cast<FloatRegister>(_mm256_fmadd_ps(
        reinterpret_cast<__m256>(a), reinterpret_cast<__m256>(b), reinterpret_cast<__m256>(c)));
}

[[gnu::always_inline]] inline WordRegister saturatedSum(WordRegister a, WordRegister b) {
    return reinterpret_cast<WordRegister>(
        _mm256_adds_epi16(reinterpret_cast<__m256i>(a), reinterpret_cast<__m256i>(b)));
}

[[gnu::always_inline]] inline WordRegister highProduct(WordRegister a, WordRegister b) {
    return reinterpret_cast<WordRegister>(
        _mm256_mulhi_epi16(reinterpret_cast<__m256i>(a), reinterpret_cast<__m256i>(b)));
}

[[gnu::always_inline]] inline bool isAny(IntegerRegister mask) {
    const auto bits = reinterpret_cast<__m256i>(mask);
    return _mm256_testz_si256(bits, bits) == 0;
}

/// The first eight bytes as numbers of four bytes each.
[[gnu::always_inline]] inline EightIntegers asIntegers(Bytes bytes) {
    return {{reinterpret_cast<EightIntegers::Register>(
        _mm256_cvtepu8_epi32(reinterpret_cast<__m128i>(bytes)))}};
}

[[gnu::always_inline]] inline Bytes limitedBytes(const SixteenIntegers& numbers) {
    const __m256i words = _mm256_packs_epi32(reinterpret_cast<__m256i>(numbers.part[0]),
                                             reinterpret_cast<__m256i>(numbers.part[1]));
    const __m256i inOrder = _mm256_permute4x64_epi64(words, 0xD8);
    return reinterpret_cast<Bytes>(
        _mm_packus_epi16(_mm256_castsi256_si128(inOrder), _mm256_extracti128_si256(inOrder, 1)));
}

[[gnu::always_inline]] inline Bytes limitedBytes(const SixteenWords& numbers) {
    const auto words = reinterpret_cast<__m256i>(numbers.part[0]);
    return reinterpret_cast<Bytes>(
        _mm_packus_epi16(_mm256_castsi256_si128(words), _mm256_extracti128_si256(words, 1)));
}

#elif !defined(LANES_PLAIN) && defined(__SSE2__)

[[gnu::always_inline]] inline WordRegister saturatedSum(WordRegister a, WordRegister b) {
    return reinterpret_cast<WordRegister>(
        _mm_adds_epi16(reinterpret_cast<__m128i>(a), reinterpret_cast<__m128i>(b)));
}

[[gnu::always_inline]] inline WordRegister highProduct(WordRegister a, WordRegister b) {
    return reinterpret_cast<WordRegister>(
        _mm_mulhi_epi16(reinterpret_cast<__m128i>(a), reinterpret_cast<__m128i>(b)));
}

[[gnu::always_inline]] inline bool isAny(IntegerRegister mask) {
    return _mm_movemask_epi8(reinterpret_cast<__m128i>(mask)) != 0;
}

[[gnu::always_inline]] inline Bytes limitedBytes(const SixteenIntegers& numbers) {
    const auto words = [&numbers](int i) {
        return _mm_packs_epi32(reinterpret_cast<__m128i>(numbers.part[i]),
                               reinterpret_cast<__m128i>(numbers.part[i + 1]));
    };
    return reinterpret_cast<Bytes>(_mm_packus_epi16(words(0), words(2)));
}

[[gnu::always_inline]] inline Bytes limitedBytes(const SixteenWords& numbers) {
    return reinterpret_cast<Bytes>(_mm_packus_epi16(reinterpret_cast<__m128i>(numbers.part[0]),
                                                    reinterpret_cast<__m128i>(numbers.part[1])));
}

#else

[[gnu::always_inline]] inline WordRegister saturatedSum(WordRegister a, WordRegister b) {
#if !defined(LANES_PLAIN) && defined(__ARM_NEON)
    return reinterpret_cast<WordRegister>(
        vqaddq_s16(reinterpret_cast<int16x8_t>(a), reinterpret_cast<int16x8_t>(b)));
#else
    // Where both have the sign that the sum has not, the sum is the end on their side.
    using Bits [[gnu::vector_size(ThisLevel::registerBytes)]] = std::uint16_t;
    const auto sum =
        reinterpret_cast<WordRegister>(reinterpret_cast<Bits>(a) + reinterpret_cast<Bits>(b));
    const WordRegister isOver = ((a ^ sum) & (b ^ sum)) >> 15;
    const WordRegister end = (a >> 15) ^ INT16_MAX;
    return (sum & ~isOver) | (end & isOver);
#endif
}

[[gnu::always_inline]] inline WordRegister highProduct(WordRegister a, WordRegister b) {
    using Wide [[gnu::vector_size(2 * ThisLevel::registerBytes)]] = std::int32_t;
    return __builtin_convertvector(
        (__builtin_convertvector(a, Wide) * __builtin_convertvector(b, Wide)) >> 16, WordRegister);
}

[[gnu::always_inline]] inline bool isAny(IntegerRegister mask) {
    using Halves [[gnu::vector_size(ThisLevel::registerBytes)]] = std::int64_t;
    const auto halves = reinterpret_cast<Halves>(mask);
    return (halves[0] | halves[1]) != 0;
}

/// Limited to 0..255.
template <typename Number>
[[gnu::always_inline]] inline Bytes limitedBytes(const Lanes<Number, 16>& numbers) {
    using Some = Lanes<Number, 16>;
    const Some limited = smaller(larger(numbers, all<Some>(0)), all<Some>(255));
    Number one[Some::count];
    store(limited, one);
    Bytes bytes;
    for (int i = 0; i < Some::count; ++i) {
        bytes[i] = static_cast<std::uint8_t>(one[i]);
    }
    return bytes;
}

#endif

/// The marks of the first eight of sixteen pixels in the lower byte, those of the others in the
/// upper one; in both the first pixel's in the highest bit.
[[gnu::always_inline]] inline unsigned packedMarks(Bytes marks) {
#if !defined(LANES_PLAIN) && defined(__SSE2__)
    const __m128i places = _mm_set1_epi64x(0x0102040810204080);
    const __m128i sums =
        _mm_sad_epu8(_mm_and_si128(reinterpret_cast<__m128i>(marks), places), _mm_setzero_si128());
    return static_cast<unsigned>(_mm_cvtsi128_si32(sums) | _mm_extract_epi16(sums, 4) << 8);
#else
    std::uint8_t bytes[sizeof marks];
    std::memcpy(bytes, &marks, sizeof marks);
    return packedTopBits(loadWord(bytes)) |
           static_cast<unsigned>(packedTopBits(loadWord(bytes + 8))) << 8;
#endif
}

#if defined(LANES_PLAIN) || !defined(__AVX2__)

[[gnu::always_inline]] inline SixteenFloats::Register nearlyAdded(SixteenFloats::Register a,
                                                                  SixteenFloats::Register b,
                                                                  SixteenFloats::Register c) {
    return a * b + c;
}

/// The first eight bytes as numbers of four bytes each.
[[gnu::always_inline]] inline EightIntegers asIntegers(Bytes bytes) {
    const Bytes words = firstWidened<1>(bytes);
    return {{reinterpret_cast<EightIntegers::Register>(firstWidened<2>(words)),
             reinterpret_cast<EightIntegers::Register>(lastWidened<2>(words))}};
}

#endif

template <int count>
[[gnu::always_inline]] inline Lanes<float, count> nearlyAdded(const Lanes<float, count>& a,
                                                              const Lanes<float, count>& b,
                                                              const Lanes<float, count>& c) {
    return registerwise<Lanes<float, count>>(
        [](auto x, auto y, auto z) { return nearlyAdded(x, y, z); }, a, b, c);
}

/// Whether a mask is set anywhere.
template <int count>
[[gnu::always_inline]] inline bool isAny(const Lanes<std::int32_t, count>& mask) {
    IntegerRegister any = mask.part[0];
    for (int i = 1; i < Lanes<std::int32_t, count>::registers; ++i) {
        any |= mask.part[i];
    }
    return isAny(any);
}

/// The sum, limited to what 16 bits hold.
template <int count>
[[gnu::always_inline]] inline Lanes<std::int16_t, count> saturatedSum(
    const Lanes<std::int16_t, count>& a, const Lanes<std::int16_t, count>& b) {
    return registerwise<Lanes<std::int16_t, count>>(
        [](auto x, auto y) { return saturatedSum(x, y); }, a, b);
}

/// The product divided by 65536, rounded down.
template <int count>
[[gnu::always_inline]] inline Lanes<std::int16_t, count> highProduct(
    const Lanes<std::int16_t, count>& a, std::int16_t factor) {
    return registerwise<Lanes<std::int16_t, count>>(
        [factor](auto x) { return highProduct(x, WordRegister{} + factor); }, a);
}

}  // namespace lanes
