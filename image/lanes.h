#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

/// Eight 16-bit numbers that are worked on at once: one SSE2 register where there is SSE2, plain
/// loops elsewhere, with the same results.
struct Lanes {
    static constexpr int count = 8;

#if defined(__SSE2__)
    __m128i value;
#else
    std::array<std::int16_t, count> value;
#endif
};

#if defined(__SSE2__)

inline Lanes allLanes(std::int16_t number) {
    return {_mm_set1_epi16(number)};
}

inline Lanes loadLanes(const std::int16_t* numbers) {
    return {_mm_loadu_si128(reinterpret_cast<const __m128i*>(numbers))};
}

inline void storeLanes(Lanes lanes, std::int16_t* numbers) {
    _mm_storeu_si128(reinterpret_cast<__m128i*>(numbers), lanes.value);
}

inline Lanes operator+(Lanes a, Lanes b) {
    return {_mm_add_epi16(a.value, b.value)};
}

inline Lanes operator-(Lanes a, Lanes b) {
    return {_mm_sub_epi16(a.value, b.value)};
}

inline Lanes operator&(Lanes a, Lanes b) {
    return {_mm_and_si128(a.value, b.value)};
}

/// -1 where a > b, 0 elsewhere.
inline Lanes isGreater(Lanes a, Lanes b) {
    return {_mm_cmpgt_epi16(a.value, b.value)};
}

/// -1 where the number is negative, 0 elsewhere.
inline Lanes isNegative(Lanes a) {
    return {_mm_srai_epi16(a.value, 15)};
}

/// The sum, limited to what 16 bits hold.
inline Lanes saturatedSum(Lanes a, Lanes b) {
    return {_mm_adds_epi16(a.value, b.value)};
}

inline Lanes larger(Lanes a, Lanes b) {
    return {_mm_max_epi16(a.value, b.value)};
}

/// The product divided by 65536, rounded down.
inline Lanes highProduct(Lanes a, std::int16_t factor) {
    return {_mm_mulhi_epi16(a.value, _mm_set1_epi16(factor))};
}

/// Every number one lane further; `first` comes into lane 0 and the last one drops out.
inline Lanes movedUp(Lanes a, std::int16_t first) {
    return {_mm_insert_epi16(_mm_slli_si128(a.value, 2), first, 0)};
}

inline std::int16_t lastLane(Lanes a) {
    return static_cast<std::int16_t>(_mm_extract_epi16(a.value, Lanes::count - 1));
}

/// Eight columns of eight bytes: lane r of element c holds byte c of the row that starts
/// r × `distance` bytes behind `first`, with `high` as its upper byte.
inline std::array<Lanes, 8> loadColumns(const std::uint8_t* first, std::ptrdiff_t distance,
                                        std::int8_t high) {
    const auto row = [=](int r) {
        return _mm_loadl_epi64(reinterpret_cast<const __m128i*>(first + r * distance));
    };
    const __m128i rows01 = _mm_unpacklo_epi8(row(0), row(1));
    const __m128i rows23 = _mm_unpacklo_epi8(row(2), row(3));
    const __m128i rows45 = _mm_unpacklo_epi8(row(4), row(5));
    const __m128i rows67 = _mm_unpacklo_epi8(row(6), row(7));
    const __m128i upperLeft = _mm_unpacklo_epi16(rows01, rows23);
    const __m128i upperRight = _mm_unpackhi_epi16(rows01, rows23);
    const __m128i lowerLeft = _mm_unpacklo_epi16(rows45, rows67);
    const __m128i lowerRight = _mm_unpackhi_epi16(rows45, rows67);
    const __m128i columns01 = _mm_unpacklo_epi32(upperLeft, lowerLeft);
    const __m128i columns23 = _mm_unpackhi_epi32(upperLeft, lowerLeft);
    const __m128i columns45 = _mm_unpacklo_epi32(upperRight, lowerRight);
    const __m128i columns67 = _mm_unpackhi_epi32(upperRight, lowerRight);
    const __m128i upper = _mm_set1_epi8(high);
    return {{{_mm_unpacklo_epi8(columns01, upper)},
             {_mm_unpackhi_epi8(columns01, upper)},
             {_mm_unpacklo_epi8(columns23, upper)},
             {_mm_unpackhi_epi8(columns23, upper)},
             {_mm_unpacklo_epi8(columns45, upper)},
             {_mm_unpackhi_epi8(columns45, upper)},
             {_mm_unpacklo_epi8(columns67, upper)},
             {_mm_unpackhi_epi8(columns67, upper)}}};
}

#else

template <typename Function>
Lanes lanesOf(Function number) {
    Lanes result;
    for (std::size_t i = 0; i < Lanes::count; ++i) {
        result.value[i] = static_cast<std::int16_t>(number(i));
    }
    return result;
}

inline Lanes allLanes(std::int16_t number) {
    return lanesOf([=](std::size_t) { return number; });
}

inline Lanes loadLanes(const std::int16_t* numbers) {
    return lanesOf([=](std::size_t i) { return numbers[i]; });
}

inline void storeLanes(Lanes lanes, std::int16_t* numbers) {
    for (std::size_t i = 0; i < Lanes::count; ++i) {
        numbers[i] = lanes.value[i];
    }
}

inline Lanes operator+(Lanes a, Lanes b) {
    return lanesOf([=](std::size_t i) { return a.value[i] + b.value[i]; });
}

inline Lanes operator-(Lanes a, Lanes b) {
    return lanesOf([=](std::size_t i) { return a.value[i] - b.value[i]; });
}

inline Lanes operator&(Lanes a, Lanes b) {
    return lanesOf([=](std::size_t i) { return a.value[i] & b.value[i]; });
}

/// -1 where a > b, 0 elsewhere.
inline Lanes isGreater(Lanes a, Lanes b) {
    return lanesOf([=](std::size_t i) { return a.value[i] > b.value[i] ? -1 : 0; });
}

/// -1 where the number is negative, 0 elsewhere.
inline Lanes isNegative(Lanes a) {
    return lanesOf([=](std::size_t i) { return a.value[i] < 0 ? -1 : 0; });
}

/// The sum, limited to what 16 bits hold.
inline Lanes saturatedSum(Lanes a, Lanes b) {
    return lanesOf([=](std::size_t i) {
        const int sum = a.value[i] + b.value[i];
        return sum > 32767 ? 32767 : (sum < -32768 ? -32768 : sum);
    });
}

inline Lanes larger(Lanes a, Lanes b) {
    return lanesOf(
        [=](std::size_t i) { return a.value[i] > b.value[i] ? a.value[i] : b.value[i]; });
}

/// The product divided by 65536, rounded down.
inline Lanes highProduct(Lanes a, std::int16_t factor) {
    return lanesOf([=](std::size_t i) { return (a.value[i] * factor) >> 16; });
}

/// Every number one lane further; `first` comes into lane 0 and the last one drops out.
inline Lanes movedUp(Lanes a, std::int16_t first) {
    return lanesOf([=](std::size_t i) { return i == 0 ? first : a.value[i - 1]; });
}

inline std::int16_t lastLane(Lanes a) {
    return a.value[Lanes::count - 1];
}

/// Eight columns of eight bytes: lane r of element c holds byte c of the row that starts
/// r × `distance` bytes behind `first`, with `high` as its upper byte.
inline std::array<Lanes, 8> loadColumns(const std::uint8_t* first, std::ptrdiff_t distance,
                                        std::int8_t high) {
    std::array<Lanes, 8> columns;
    for (std::size_t c = 0; c < columns.size(); ++c) {
        columns[c] = lanesOf([=](std::size_t r) {
            return high * 256 + first[static_cast<std::ptrdiff_t>(r) * distance +
                                      static_cast<std::ptrdiff_t>(c)];
        });
    }
    return columns;
}

#endif
