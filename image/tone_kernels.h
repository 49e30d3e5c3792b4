#pragma once

#include <cstddef>
#include <cstdint>

#include "lanes/level.h"

/// What brightness and contrast make of a level: (level - 128) × slope + offset, in single
/// precision with each step rounded, then the nearest whole number, limited to 0..255.
struct ToneLine {
    float offset;
    float slope;
};

/// Tones as they are compiled for a level of the processor.
struct ToneFunctions {
    /// Every level of a row by a line.
    void (*light)(std::uint8_t* row, std::size_t width, const ToneLine& line);
};

template <typename Level>
struct ToneKernels {
    static const ToneFunctions table;
};
template <>
const ToneFunctions ToneKernels<lanes::Baseline>::table;
template <>
const ToneFunctions ToneKernels<lanes::Avx2>::table;
