#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

// Eight numbers that are worked on at once, as two vectors of four: while one waits for a result,
// the other is worked on.

using FourFloats = float __attribute__((vector_size(16)));
using FourMasks = std::int32_t __attribute__((vector_size(16)));

/// All bits set where something holds, none elsewhere.
struct MaskLanes {
    FourMasks low;
    FourMasks high;
};

struct FloatLanes {
    static constexpr int count = 8;

    FourFloats low;
    FourFloats high;
};

inline FloatLanes allLanes(float number) {
    return {FourFloats{} + number, FourFloats{} + number};
}

inline FloatLanes operator+(FloatLanes a, FloatLanes b) {
    return {a.low + b.low, a.high + b.high};
}

inline FloatLanes operator-(FloatLanes a, FloatLanes b) {
    return {a.low - b.low, a.high - b.high};
}

inline FloatLanes operator*(FloatLanes a, FloatLanes b) {
    return {a.low * b.low, a.high * b.high};
}

inline MaskLanes operator>(FloatLanes a, FloatLanes b) {
    return {a.low > b.low, a.high > b.high};
}

inline MaskLanes operator&(MaskLanes a, MaskLanes b) {
    return {a.low & b.low, a.high & b.high};
}

inline MaskLanes operator~(MaskLanes a) {
    return {~a.low, ~a.high};
}

/// The numbers where the mask is set, 0 elsewhere.
inline FloatLanes operator&(FloatLanes a, MaskLanes b) {
    return {reinterpret_cast<FourFloats>(reinterpret_cast<FourMasks>(a.low) & b.low),
            reinterpret_cast<FourFloats>(reinterpret_cast<FourMasks>(a.high) & b.high)};
}

/// Everything one lane further; `first` comes into lane 0 and the last one drops out.
inline FloatLanes movedUp(FloatLanes a, float first) {
    return {__builtin_shufflevector(a.low, FourFloats{first}, 4, 0, 1, 2),
            __builtin_shufflevector(a.high, a.low, 7, 0, 1, 2)};
}

inline MaskLanes movedUp(MaskLanes a, bool first) {
    return {__builtin_shufflevector(a.low, FourMasks{first ? -1 : 0}, 4, 0, 1, 2),
            __builtin_shufflevector(a.high, a.low, 7, 0, 1, 2)};
}

inline float lastLane(FloatLanes a) {
    return a.high[3];
}

inline MaskLanes loadMasks(const std::array<std::int32_t, FloatLanes::count>& masks) {
    return {FourMasks{masks[0], masks[1], masks[2], masks[3]},
            FourMasks{masks[4], masks[5], masks[6], masks[7]}};
}

#if defined(__SSE2__)

struct ByteLanes {
    __m128i value;
};

/// Eight rows of eight bytes as eight columns of eight, two columns to a register.
inline std::array<ByteLanes, 4> transposedBytes(const std::array<ByteLanes, 8>& rows) {
    const __m128i rows01 = _mm_unpacklo_epi8(rows[0].value, rows[1].value);
    const __m128i rows23 = _mm_unpacklo_epi8(rows[2].value, rows[3].value);
    const __m128i rows45 = _mm_unpacklo_epi8(rows[4].value, rows[5].value);
    const __m128i rows67 = _mm_unpacklo_epi8(rows[6].value, rows[7].value);
    const __m128i upperLeft = _mm_unpacklo_epi16(rows01, rows23);
    const __m128i upperRight = _mm_unpackhi_epi16(rows01, rows23);
    const __m128i lowerLeft = _mm_unpacklo_epi16(rows45, rows67);
    const __m128i lowerRight = _mm_unpackhi_epi16(rows45, rows67);
    return {{{_mm_unpacklo_epi32(upperLeft, lowerLeft)},
             {_mm_unpackhi_epi32(upperLeft, lowerLeft)},
             {_mm_unpacklo_epi32(upperRight, lowerRight)},
             {_mm_unpackhi_epi32(upperRight, lowerRight)}}};
}

inline FloatLanes floatsOfWords(__m128i words) {
    const __m128i zero = _mm_setzero_si128();
    return {reinterpret_cast<FourFloats>(_mm_cvtepi32_ps(_mm_unpacklo_epi16(words, zero))),
            reinterpret_cast<FourFloats>(_mm_cvtepi32_ps(_mm_unpackhi_epi16(words, zero)))};
}

/// Eight columns of eight bytes: lane r of element c holds byte c of the row that starts
/// r × `distance` bytes behind `first`.
inline std::array<FloatLanes, 8> loadColumns(const unsigned char* first, std::ptrdiff_t distance) {
    std::array<ByteLanes, 8> rows;
    for (std::size_t r = 0; r < rows.size(); ++r) {
        rows[r].value = _mm_loadl_epi64(
            reinterpret_cast<const __m128i*>(first + static_cast<std::ptrdiff_t>(r) * distance));
    }
    const std::array<ByteLanes, 4> pairs = transposedBytes(rows);
    const __m128i zero = _mm_setzero_si128();
    std::array<FloatLanes, 8> columns;
    for (std::size_t i = 0; i < pairs.size(); ++i) {
        columns[2 * i] = floatsOfWords(_mm_unpacklo_epi8(pairs[i].value, zero));
        columns[2 * i + 1] = floatsOfWords(_mm_unpackhi_epi8(pairs[i].value, zero));
    }
    return columns;
}

/// The opposite: byte c of each row is 255 where the mask of element c is set and 0 elsewhere.
inline void storeColumns(const std::array<MaskLanes, 8>& columns, unsigned char* first,
                         std::ptrdiff_t distance) {
    std::array<ByteLanes, 8> bytes;
    for (std::size_t c = 0; c < columns.size(); ++c) {
        const __m128i words = _mm_packs_epi32(reinterpret_cast<__m128i>(columns[c].low),
                                              reinterpret_cast<__m128i>(columns[c].high));
        bytes[c].value = _mm_packs_epi16(words, words);
    }
    const std::array<ByteLanes, 4> pairs = transposedBytes(bytes);
    for (std::size_t i = 0; i < pairs.size(); ++i) {
        unsigned char* row = first + static_cast<std::ptrdiff_t>(2 * i) * distance;
        _mm_storel_epi64(reinterpret_cast<__m128i*>(row), pairs[i].value);
        _mm_storel_epi64(reinterpret_cast<__m128i*>(row + distance),
                         _mm_unpackhi_epi64(pairs[i].value, pairs[i].value));
    }
}

#else

/// Eight columns of eight bytes: lane r of element c holds byte c of the row that starts
/// r × `distance` bytes behind `first`.
inline std::array<FloatLanes, 8> loadColumns(const unsigned char* first, std::ptrdiff_t distance) {
    std::array<FloatLanes, 8> columns;
    for (int c = 0; c < 8; ++c) {
        for (int r = 0; r < 4; ++r) {
            FloatLanes& column = columns[static_cast<std::size_t>(c)];
            column.low[r] = static_cast<float>(first[r * distance + c]);
            column.high[r] = static_cast<float>(first[(r + 4) * distance + c]);
        }
    }
    return columns;
}

/// The opposite: byte c of each row is 255 where the mask of element c is set and 0 elsewhere.
inline void storeColumns(const std::array<MaskLanes, 8>& columns, unsigned char* first,
                         std::ptrdiff_t distance) {
    for (int c = 0; c < 8; ++c) {
        for (int r = 0; r < 4; ++r) {
            const MaskLanes& column = columns[static_cast<std::size_t>(c)];
            first[r * distance + c] = static_cast<unsigned char>(column.low[r]);
            first[(r + 4) * distance + c] = static_cast<unsigned char>(column.high[r]);
        }
    }
}

#endif
