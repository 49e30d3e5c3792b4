#pragma once

#include <cstddef>
#include <cstdint>

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

// The few operations that compilers do not find in plain text: one instruction of the processor's where
// it has one, and the plain text elsewhere. With LANES_PLAIN everything is plain text.

namespace lanes {

template <std::size_t bytes>
using Words [[gnu::vector_size(bytes)]] = std::int16_t;

using WordRegister = Words<ThisLevel::registerBytes>;

#if !defined(LANES_PLAIN) && defined(__AVX2__)

[[gnu::always_inline]] inline WordRegister saturatedSum(WordRegister a, WordRegister b) {
    return reinterpret_cast<WordRegister>(
        _mm256_adds_epi16(reinterpret_cast<__m256i>(a), reinterpret_cast<__m256i>(b)));
}

[[gnu::always_inline]] inline WordRegister highProduct(WordRegister a, WordRegister b) {
    return reinterpret_cast<WordRegister>(
        _mm256_mulhi_epi16(reinterpret_cast<__m256i>(a), reinterpret_cast<__m256i>(b)));
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

#endif

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
