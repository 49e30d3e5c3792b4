#pragma once

#include <cstddef>
#include <memory>

#include "lanes/level.h"

/// Levels and dots of some rows in memory; strides in bytes.
struct EdgeBand {
    const unsigned char* levels;
    std::ptrdiff_t levelStride;
    unsigned char* dots;
    std::ptrdiff_t dotStride;
};

/// The bands of a page, from the first one to the last.
class EdgeBands {
public:
    static constexpr int rows = 8;  ///< of a band

    EdgeBands() = default;
    EdgeBands(const EdgeBands&) = delete;
    EdgeBands& operator=(const EdgeBands&) = delete;
    virtual ~EdgeBands() = default;

    virtual void diffuse(const EdgeBand& band) = 0;
};

/// Edge diffusion as it is compiled for a level of the processor.
struct EdgeTable {
    std::unique_ptr<EdgeBands> (*make)(int width, int height, float threshold);
};

template <typename Level>
struct EdgeKernels {
    static const EdgeTable table;
};
template <>
const EdgeTable EdgeKernels<lanes::Baseline>::table;
template <>
const EdgeTable EdgeKernels<lanes::Avx2>::table;
