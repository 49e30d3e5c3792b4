// Compares the stencils of fixed pages with their digests, for builds of the library with
// options of their own. Exit status 1 when a stencil differs.
#include <cstdio>

#include "enhance/tattoo_dithering.h"
#include "tests/unit/enhance/stencil_pages.h"

namespace {

using stencil_pages::bytesOf;
using stencil_pages::DigestCase;
using stencil_pages::digestOf;
using stencil_pages::imageOf;

bool canRunHere() {
#if defined(__AVX2__) || defined(__FMA__)
    return __builtin_cpu_supports("avx2") && __builtin_cpu_supports("fma");
#else
    return true;
#endif
}

bool isAsRecorded(const DigestCase& fixed) {
    const QMImage image = imageOf(fixed.page);
    return digestOf(bytesOf(qmTattooDithering(image))) == fixed.tattoo &&
           digestOf(bytesOf(qmTattooDitheringX8(image))) == fixed.x8;
}

int countDifferences() {
    int differences = 0;
    for (const DigestCase& fixed : stencil_pages::digestCases()) {
        if (!isAsRecorded(fixed)) {
            std::printf("the stencil of the page \"%s\" differs\n", fixed.name.data());
            ++differences;
        }
    }
    return differences;
}

}  // namespace

// What CTest shows as skipped.
constexpr int skipped = 77;

int main() {
    if (!canRunHere()) {
        std::puts("left out: this processor has no AVX2 or no FMA");
        return skipped;
    }
    const int differences = countDifferences();
    std::printf("%d pages differ\n", differences);
    return differences == 0 ? 0 : 1;
}
