// The iterations of the numeric functions settle on what the stencils pass to them, on exactly
// the value of the plain iteration. What would not end is stopped by the test's time limit.
#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <optional>

#include "enhance/numeric.h"
#include "tests/reference/stencil_numeric.h"

namespace {

constexpr std::uint32_t kSmallest = 1;
constexpr std::uint32_t kInfinity = 0x7F800000U;

bool isSame(float a, std::optional<float> b) {
    return b && std::bit_cast<std::uint32_t>(a) == std::bit_cast<std::uint32_t>(*b);
}

/// Calls `check` with every place on a tone curve, for every knee that a page can have.
template <typename Check>
void forEveryPlaceOnACurve(Check check) {
    for (int knee = -1; knee < 256; ++knee) {
        for (int level = 0; level < 256; ++level) {
            const bool below = level < knee;
            const int length = below ? knee : 255 - knee;
            if (length != 0) {
                check(static_cast<float>(below ? level : level - knee) /
                      static_cast<float>(length));
            }
        }
    }
}

TEST(NumericSettles, InTheLogarithmOfEveryRatioOfTheToneCurves) {
    forEveryPlaceOnACurve([](float place) {
        ASSERT_TRUE(isSame(my_ln(place), reference::logarithm(place))) << place;
    });
}

TEST(NumericSettles, InThePowerOfEveryPlaceOnATonesCurve) {
    for (const float exponent : {0.5F, 0.7F, 0.85F, 1.5F}) {
        forEveryPlaceOnACurve([=](float place) {
            ASSERT_TRUE(isSame(my_pow(place, exponent), reference::power(place, exponent)))
                << place << " to the power of " << exponent;
        });
    }
}

/// Checks the roots of all floats whose bits lie from `first` to `last`, `step` apart.
void expectRootsSettle(std::uint32_t first, std::uint32_t last, std::uint32_t step) {
    for (std::uint32_t bits = first; bits <= last; bits += step) {
        const auto x = std::bit_cast<float>(bits);
        ASSERT_TRUE(isSame(my_sqrt(x), reference::squareRoot(x))) << x;
    }
}

TEST(NumericSettles, InTheRootOfFloatsAllOverTheRange) {
    expectRootsSettle(kSmallest + 1, kInfinity - 1, 1021);
}

TEST(NumericSettles, InTheRootOfFloatsNearEveryPowerOfTwo) {
    for (std::uint32_t exponent = 1; exponent < 255; ++exponent) {
        const std::uint32_t power = exponent << 23;
        expectRootsSettle(power - 300, power + 300, 1);
    }
}

TEST(NumericSettles, InTheRootOfTheSmallestAndTheLargestFloats) {
    expectRootsSettle(kSmallest + 1, 20000, 1);
    expectRootsSettle(kInfinity - 20000, kInfinity - 1, 1);
}

TEST(NumericSettles, InTheRootOfSquaresAndOfTheirNeighbours) {
    for (int root = 1; root <= 4095; ++root) {
        const auto square = std::bit_cast<std::uint32_t>(static_cast<float>(root * root));
        expectRootsSettle(square - 2, square + 2, 1);
    }
}

TEST(NumericSettles, InTheLogarithmOfFloatsFromAThousandthToAMillion) {
    const auto last = std::bit_cast<std::uint32_t>(1e6F);
    for (auto bits = std::bit_cast<std::uint32_t>(1e-3F); bits <= last; bits += 4099) {
        const auto x = std::bit_cast<float>(bits);
        ASSERT_TRUE(isSame(my_ln(x), reference::logarithm(x))) << x;
    }
}

}  // namespace
