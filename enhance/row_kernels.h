#pragma once

#include <cstddef>

#include "enhance/tap_weights.h"
#include "lanes/level.h"

/// Rows are worked on so many pixels at a time: rows of floats have room for whole blocks.
inline constexpr std::size_t rowBlock = 16;
inline constexpr std::size_t inWholeBlocks(std::size_t width) {
    return (width + rowBlock - 1) / rowBlock * rowBlock;
}

/// What is done to a row of pixels at a time, as it is compiled for a level of the processor.
struct RowTable {
    /// For every pixel x the products taps[k][x] × weight k, added in double precision from the
    /// first tap to the last, rounded to single precision and then to the nearest whole number, of
    /// which the low 8 bits are written. The rows of the taps have room for whole blocks.
    void (*filter)(const float* const* taps, const TapWeights& weights, std::size_t width,
                   unsigned char* out);
    /// The same, the bytes as floats.
    void (*filterWide)(const float* const* taps, const TapWeights& weights, std::size_t width,
                       float* out);

    /// a × (1 + weight) - b × weight of every pixel, in single precision, rounded and limited to
    /// 0..255.
    void (*addWeighted)(const unsigned char* a, const unsigned char* b, float weight,
                        std::size_t width, unsigned char* out);

    /// Every byte by a table of 256; in place, if `out` is `bytes`.
    void (*lookUp)(const unsigned char* bytes, std::size_t width, const unsigned char* table,
                   unsigned char* out);

    /// Every byte as a float.
    void (*widen)(const unsigned char* bytes, std::size_t width, float* floats);
};

template <typename Level>
struct RowKernels {
    static const RowTable table;
};
template <>
const RowTable RowKernels<lanes::Baseline>::table;
template <>
const RowTable RowKernels<lanes::Avx2>::table;
