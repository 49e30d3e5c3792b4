#pragma once

#include <cstddef>

// Kernels are compiled once for each level of the processor, from one text. LANES_LEVEL is the
// level of the file that is being compiled; the build sets it beside the compiler's options for
// that level.

#ifndef LANES_LEVEL
#define LANES_LEVEL Baseline
#endif

namespace lanes {

/// What every processor of the architecture can do.
struct Baseline {
    static constexpr std::size_t registerBytes = 16;
    static constexpr const char* name = "baseline";
};

/// x86-64 with AVX2 and FMA, parts of x86-64-v3.
struct Avx2 {
    static constexpr std::size_t registerBytes = 32;
    static constexpr const char* name = "AVX2";
};

using ThisLevel = LANES_LEVEL;

}  // namespace lanes
