#include "lanes/choice.h"

namespace lanes {

bool hasAvx2() {
#ifdef LANES_WITH_AVX2
    return __builtin_cpu_supports("avx2") != 0 && __builtin_cpu_supports("fma") != 0;
#else
    return false;
#endif
}

const char* levelName() {
    return hasAvx2() ? Avx2::name : ThisLevel::name;
}

}  // namespace lanes
