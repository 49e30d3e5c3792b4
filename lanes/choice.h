#pragma once

#include "lanes/level.h"

namespace lanes {

/// Whether kernels for AVX2 and FMA are built and this processor can run them.
bool hasAvx2();

/// The name of the level that runs here.
const char* levelName();

/// The kernels of the best level that is built and that this processor can run. `Kernels<Level>`
/// has them in a static member `table`, which the kernels' file defines for the level it is
/// compiled for.
template <template <typename> typename Kernels>
const auto& best() {
#ifdef LANES_WITH_AVX2
    if (hasAvx2()) {
        return Kernels<Avx2>::table;
    }
#endif
    return Kernels<ThisLevel>::table;
}

}  // namespace lanes
