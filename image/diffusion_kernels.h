#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "lanes/level.h"

/// One cell of an error-diffusion kernel: `weight` parts of the error go to the pixel `dx`
/// columns right of and `dy` rows below the current one.
struct DiffusionCell {
    int dx;
    int dy;
    int weight;
};

/// Rows of bytes in memory.
template <typename Byte>
struct ByteRows {
    Byte* first;
    std::ptrdiff_t stride;  ///< from one row to the next
    std::ptrdiff_t width;   ///< bytes used of a row
    std::ptrdiff_t height;

    Byte* row(std::ptrdiff_t y) const { return first + y * stride; }
};

/// Diffuses the error of a page of grey levels and writes its dots in packed rows, 1 for white,
/// each row to its last whole byte. Raises the standard allocation exception when memory is short.
using DiffuseBytes = void (*)(const ByteRows<const std::uint8_t>& levels,
                              const ByteRows<std::uint8_t>& dots);

/// The kernels for pages of bytes, as they are compiled for a level of the processor.
struct DiffusionTable {
    DiffuseBytes floydSteinberg;
    DiffuseBytes burkes;
    DiffuseBytes stucki;
    DiffuseBytes jarvisJudiceNinke;
    DiffuseBytes sierra;
    DiffuseBytes stevensonArce;
};

template <typename Level>
struct DiffusionKernels {
    static const DiffusionTable table;
};
template <>
const DiffusionTable DiffusionKernels<lanes::Baseline>::table;
template <>
const DiffusionTable DiffusionKernels<lanes::Avx2>::table;
