// Checks halftoning against values worked out by hand.
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/reference/dither.h"
#include "tests/reference/error_diffusion.h"

namespace reference {
namespace {

std::ptrdiff_t countOf(const Bytes& bytes, std::uint8_t value) {
    return std::count(bytes.begin(), bytes.end(), value);
}

TEST(ReferenceDither, ALevel128PageIsAllBlackUnderTheThreshold) {
    EXPECT_EQ(dither(0, 4, 2, Bytes(8, 128)), Bytes(8, 0));
    EXPECT_EQ(dither(0, 4, 2, Bytes(8, 129)), Bytes(8, 1));
}

TEST(ReferenceDither, AWhitePageStaysWhiteAndABlackPageBlackUnderEveryMethod) {
    for (long method = -1; method <= 8; ++method) {
        EXPECT_EQ(dither(method, 9, 7, Bytes(63, 255)), Bytes(63, 1)) << method;
        EXPECT_EQ(dither(method, 9, 7, Bytes(63, 0)), Bytes(63, 0)) << method;
    }
}

TEST(ReferenceDither, TheOrderedMethodWhitensMatrixValuesBelow8AtLevel128) {
    const Bytes expected = {1, 0, 1, 0, 0, 1, 0, 1, 1, 0, 1, 0, 0, 1, 0, 1};
    EXPECT_EQ(dither(1, 4, 4, Bytes(16, 128)), expected);
}

TEST(ReferenceDither, TheOrderedMethodReachesFullWhiteOnlyAtLevel255) {
    // 254 gives 15 dots of 16: only the cell of value 15 stays black.
    const Bytes values = dither(1, 4, 4, Bytes(16, 254));
    EXPECT_EQ(countOf(values, 0), 1);
    EXPECT_EQ(values[12], 0);
}

TEST(ReferenceDither, TheBayerThresholdsAreThoseOfTheFourByFourTable) {
    const std::uint8_t expected[4][4] = {
        {0, 192, 48, 240}, {128, 64, 176, 112}, {32, 224, 16, 208}, {160, 96, 144, 80}};
    for (std::size_t y = 0; y < 8; ++y) {
        for (std::size_t x = 0; x < 8; ++x) {
            EXPECT_EQ(bayerThreshold(x, y), expected[y % 4][x % 4]) << x << ", " << y;
        }
    }
}

TEST(ReferenceDither, TheBayerMethodWhitensHalfOfACellAtLevel128) {
    const Bytes expected = {1, 0, 1, 0, 0, 1, 0, 1, 1, 0, 1, 0, 0, 1, 0, 1};
    EXPECT_EQ(dither(7, 4, 4, Bytes(16, 128)), expected);
}

TEST(ReferenceDither, FloydSteinbergCarriesTheErrorToTheRight) {
    // 129 is white with error -126: 129 - 55 = 74 is black, 129 + 32 = 161 is white.
    EXPECT_EQ(dither(100, 3, 1, Bytes(3, 129)), (Bytes{1, 0, 1}));
}

TEST(ReferenceDither, AColumnOfOnePixelPassesErrorStraightDownOnly) {
    // 129 - 39 = 90 is black, 129 + 28 = 157 is white.
    EXPECT_EQ(dither(8, 1, 3, Bytes(3, 129)), (Bytes{1, 0, 1}));
}

TEST(ReferenceDither, SharesOfANegativeErrorAreTruncatedTowardZero) {
    // -126 × 7 ÷ 16 is -55.125: 184 - 55 is just white, 183 - 55 just black.
    EXPECT_EQ(dither(-1, 2, 1, {129, 184}), (Bytes{1, 1}));
    EXPECT_EQ(dither(-1, 2, 1, {129, 183}), (Bytes{1, 0}));
}

TEST(ReferenceDither, BurkesReachesTwoPixelsAhead) {
    // The pixel between is 255 - 31 = 224 and white with error -31, of which 7 go on:
    // 151 - 15 - 7 = 129 is white, 150 - 15 - 7 = 128 black.
    EXPECT_EQ(dither(2, 3, 1, {129, 255, 151}), (Bytes{1, 1, 1}));
    EXPECT_EQ(dither(2, 3, 1, {129, 255, 150}), (Bytes{1, 1, 0}));
}

TEST(ReferenceDither, StevensonArceSkipsTheNextPixelOfTheRow) {
    EXPECT_EQ(dither(6, 2, 1, {129, 129}), (Bytes{1, 1}));
    // -126 × 32 ÷ 200 is -20.16.
    EXPECT_EQ(dither(6, 3, 1, {129, 255, 149}), (Bytes{1, 1, 1}));
    EXPECT_EQ(dither(6, 3, 1, {129, 255, 148}), (Bytes{1, 1, 0}));
}

TEST(ReferenceDither, TheWeightsOfEveryKernelAddUpToItsDivisor) {
    for (long method = 1; method <= 6; ++method) {
        const Kernel kernel = kernelOf(method);
        std::int64_t sum = 0;
        for (const KernelCell& cell : kernel.cells) {
            sum += cell.weight;
        }
        EXPECT_EQ(sum, kernel.divisor) << method;
    }
}

TEST(ReferenceDither, AFourBitSourceNeverCollectsEnoughErrorForWhite) {
    EXPECT_EQ(countOf(dither(-1, 32, 32, Bytes(1024, 15), 15), 1), 0);
    EXPECT_GT(countOf(dither(-1, 32, 32, Bytes(1024, 15)), 1), 0);
}

}  // namespace
}  // namespace reference
