#include "enhance/gaussian.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <numeric>

#include "tests/reference/stencil_blur.h"
#include "tests/unit/enhance/numeric_values.h"
#include "tests/unit/enhance/stencil_pages.h"

namespace {

using stencil_pages::Bytes;
using stencil_pages::bytesOf;
using stencil_pages::greyImage;
using stencil_pages::GreyPage;
using stencil_pages::imageOf;
using Weights = std::vector<double>;

constexpr double kUntouched = 123456.0;

/// A kernel with one more entry behind it that nothing may write.
Weights kernel1D(int size, double sigma) {
    Weights weights(static_cast<std::size_t>(size) + 1, kUntouched);
    generateGaussianKernel1D(size, sigma, weights.data());
    EXPECT_EQ(weights.back(), kUntouched);
    weights.pop_back();
    return weights;
}

/// The same with a square kernel and `size` + 1 more entries.
Weights kernel2D(int size, double sigmaX, double sigmaY) {
    const auto count = static_cast<std::size_t>(size * size);
    Weights weights(count + static_cast<std::size_t>(size) + 1, kUntouched);
    generateGaussianKernel(size, sigmaX, sigmaY, weights.data());
    for (std::size_t i = count; i < weights.size(); ++i) {
        EXPECT_EQ(weights[i], kUntouched);
    }
    weights.resize(count);
    return weights;
}

template <typename Patterns>
void expectBits(const Weights& weights, const Patterns& patterns) {
    ASSERT_EQ(weights.size(), patterns.size());
    for (std::size_t i = 0; i < weights.size(); ++i) {
        EXPECT_EQ(std::bit_cast<std::uint64_t>(weights[i]), patterns[i]) << i;
    }
}

double sumOf(const Weights& weights) {
    return std::accumulate(weights.begin(), weights.end(), 0.0);
}

Bytes convolved(int width, int height, const Bytes& levels, const Weights& weights,
                bool horizontal) {
    return bytesOf(convolve1D(greyImage(width, height, levels), weights.data(),
                              static_cast<int>(weights.size()), horizontal));
}

TEST(GenerateGaussianKernel1D, GivesTheseBits) {
    expectBits(kernel1D(11, 3.0), numeric_values::kWeights11);
    expectBits(kernel1D(5, 0.8), numeric_values::kWeights5);
}

TEST(GenerateGaussianKernel1D, OfSize1IsOne) {
    EXPECT_EQ(kernel1D(1, 3.0), Weights{1.0});
}

TEST(GenerateGaussianKernel1D, AddsUpToOneAndFallsToBothSides) {
    const Weights weights = kernel1D(11, 3.0);
    EXPECT_NEAR(sumOf(weights), 1.0, 1e-15);
    for (std::size_t i = 0; i < 5; ++i) {
        EXPECT_EQ(weights[i], weights[10 - i]);
        EXPECT_LT(weights[i], weights[i + 1]);
    }
}

TEST(GenerateGaussianKernel1D, IsThatOfTheReference) {
    for (int size = 1; size <= 41; size += 2) {
        for (const double sigma : {0.3, 0.8, 1.0, 3.0, 7.5}) {
            EXPECT_EQ(kernel1D(size, sigma), reference::gaussianWeights(size, sigma))
                << size << ", " << sigma;
        }
    }
}

TEST(GenerateGaussianKernel1D, OfAnEvenSizeStaysInsideItsKernel) {
    for (int size = 2; size <= 12; size += 2) {
        const Weights weights = kernel1D(size, 1.5);
        const auto middle = static_cast<std::size_t>(size / 2);
        EXPECT_NEAR(sumOf(weights), 1.0, 1e-12);
        EXPECT_EQ(std::max_element(weights.begin(), weights.end()) - weights.begin(), size / 2);
        for (std::size_t i = 1; i < middle; ++i) {
            EXPECT_EQ(weights[middle - i], weights[middle + i]);
        }
    }
}

TEST(GenerateGaussianKernel, GivesTheseBits) {
    expectBits(kernel2D(5, 1.1, 2.3), numeric_values::kSquareWeights);
}

TEST(GenerateGaussianKernel, OfSize1IsOne) {
    EXPECT_EQ(kernel2D(1, 3.0, 2.0), Weights{1.0});
}

TEST(GenerateGaussianKernel, TakesTheFirstSigmaAcrossAndTheSecondDown) {
    const Weights weights = kernel2D(3, 0.5, 2.0);
    EXPECT_NEAR(sumOf(weights), 1.0, 1e-15);
    // Rows fall off faster than columns: e^-2 against e^-0.125.
    EXPECT_NEAR(weights[3] / weights[4], 0.135335, 1e-5);
    EXPECT_NEAR(weights[1] / weights[4], 0.882497, 1e-5);
}

TEST(GenerateGaussianKernel, IsThatOfTheReference) {
    for (int size = 1; size <= 13; size += 2) {
        for (const double sigma : {0.4, 1.0, 3.0}) {
            EXPECT_EQ(kernel2D(size, sigma, 1.7), reference::gaussianSquare(size, sigma, 1.7))
                << size << ", " << sigma;
        }
    }
}

TEST(GenerateGaussianKernel, OfAnEvenSizeStaysInsideItsKernel) {
    for (int size = 2; size <= 8; size += 2) {
        EXPECT_NEAR(sumOf(kernel2D(size, 1.5, 1.0)), 1.0, 1e-12);
    }
}

TEST(Convolve1D, RepeatsTheEdgePixels) {
    // 0·½ + 100·¼, 0·¼ + 100·½ + 200·¼, 100·¼ + 200·½ + 200·¼.
    EXPECT_EQ(convolved(3, 1, {0, 100, 200}, {0.25, 0.5, 0.25}, true), (Bytes{25, 100, 175}));
    EXPECT_EQ(convolved(1, 3, {0, 100, 200}, {0.25, 0.5, 0.25}, false), (Bytes{25, 100, 175}));
}

TEST(Convolve1D, RunsTheKernelFromLeftToRightAndFromTopToBottom) {
    EXPECT_EQ(convolved(3, 1, {1, 2, 3}, {1, 0, 0}, true), (Bytes{1, 1, 2}));
    EXPECT_EQ(convolved(1, 3, {1, 2, 3}, {0, 0, 1}, false), (Bytes{2, 3, 3}));
}

TEST(Convolve1D, FiltersRowsOrColumnsOnly) {
    const Bytes levels = {10, 20, 30, 40};
    EXPECT_EQ(convolved(2, 2, levels, {1, 0, 0}, true), (Bytes{10, 10, 30, 30}));
    EXPECT_EQ(convolved(2, 2, levels, {1, 0, 0}, false), (Bytes{10, 20, 10, 20}));
}

TEST(Convolve1D, GivesAPixelBackWhereTheImageIsOnePixelWide) {
    const Bytes levels = {0, 7, 128, 254, 255};
    EXPECT_EQ(convolved(1, 5, levels, kernel1D(11, 3.0), true), levels);
    EXPECT_EQ(convolved(5, 1, levels, kernel1D(11, 3.0), false), levels);
}

TEST(Convolve1D, RoundsTheSumAfterNarrowingItToSinglePrecision) {
    EXPECT_EQ(convolved(1, 1, {1}, {0.0, 0.5, 0.0}, true), Bytes{1});
    EXPECT_EQ(convolved(1, 1, {1}, {0.0, 0.4999, 0.0}, true), Bytes{0});
    EXPECT_EQ(convolved(1, 1, {1}, {0.0, 0.4999999999, 0.0}, true), Bytes{1});
}

TEST(Convolve1D, AddsFromTheFirstTapToTheLastInDoublePrecision) {
    // The 1 is lost beside the first tap and kept after the last.
    EXPECT_EQ(convolved(1, 1, {1}, {1e17, 1, -1e17}, true), Bytes{0});
    EXPECT_EQ(convolved(1, 1, {1}, {1e17, -1e17, 1}, true), Bytes{1});
    EXPECT_EQ(convolved(1, 1, {1}, {1e12, 1, -1e12}, false), Bytes{1});
}

TEST(Convolve1D, KeepsTheLowByteOfASumOutsideTheRange) {
    EXPECT_EQ(convolved(1, 1, {200}, {0, 2, 0}, true), Bytes{144});
    EXPECT_EQ(convolved(1, 1, {1}, {0, -1, 0}, true), Bytes{255});
}

TEST(Convolve1D, FiltersOneByteAPixelWhateverTheLayout) {
    const Bytes levels = {0, 100, 9, 9, 9, 9};
    const Weights weights = {0, 0, 1};
    const QMImage result =
        convolve1D(QMImage(2, 1, QM_IMG_RGB, levels.data()), weights.data(), 3, true);
    EXPECT_EQ(bytesOf(result), (Bytes{100, 100, 9, 9, 9, 9}));
    EXPECT_EQ(result.color, QM_IMG_RGB);
}

TEST(Convolve1D, WithASizeBelowZeroIsBlackAsWithNone) {
    const QMImage image = greyImage(3, 1, {1, 2, 3});
    for (const int size : {0, -1, -2, -3}) {
        for (const bool horizontal : {true, false}) {
            EXPECT_EQ(bytesOf(convolve1D(image, nullptr, size, horizontal)), Bytes(3, 0)) << size;
        }
    }
}

TEST(Convolve1D, OfAnEmptyImageIsEmpty) {
    for (const bool horizontal : {true, false}) {
        EXPECT_TRUE(convolved(0, 3, {}, {0.25, 0.5, 0.25}, horizontal).empty());
        EXPECT_TRUE(convolved(3, 0, {}, {0.25, 0.5, 0.25}, horizontal).empty());
    }
}

TEST(Convolve1D, WithAnEvenSizeReadsNothingBehindItsKernel) {
    EXPECT_EQ(convolved(3, 1, {1, 2, 3}, {1, 0}, true), (Bytes{1, 1, 2}));
    EXPECT_EQ(convolved(3, 1, {1, 2, 3}, {0, 1}, true), (Bytes{1, 2, 3}));
}

TEST(Convolve1D, IsThatOfTheReferenceAtEveryWidth) {
    for (int width = 1; width <= 130; ++width) {
        const GreyPage page =
            stencil_pages::noisePage(width, 13, static_cast<std::uint32_t>(width));
        const auto columns = static_cast<std::size_t>(width);
        for (const int size : {1, 3, 11, 29}) {
            const Weights weights = reference::gaussianWeights(size, 3.0);
            EXPECT_EQ(convolved(width, 13, page.levels, weights, true),
                      reference::filteredRows(columns, 13, page.levels, weights));
            EXPECT_EQ(convolved(width, 13, page.levels, weights, false),
                      reference::filteredColumns(columns, 13, page.levels, weights));
        }
    }
}

// Wide enough for every way in which pixels are worked on together.
TEST(Convolve1D, IsThatOfTheReferenceWithUnusualKernels) {
    const GreyPage page = stencil_pages::noisePage(61, 37, 5);
    const Weights kernels[] = {
        {0.1, 0.2, 0.7},              // not symmetric
        {0.3, 0.3, 0.3, 0.05, 0.05},  //
        {-0.5, 2, -0.5},              // of both signs
        {-1, -1, -1},                 //
        {-0.3, -0.9, -0.1},           //
        {1, 1, 1},                    // beyond a byte
        {0, 4e7, 0},                  // beyond 32 bits
        {-4e7, 0, 0},                 //
        {1e300, 1e300, 1e300},        // beyond single and double precision
        {1e308, 1e308, 1e308},        //
        {1e308, -1e308, 1e308},       //
        {1e17, 1, -1e17},             // other sums in another order
        {1e17, -1e17, 1},             //
        {1, 1e17, -1e17},             //
        {0.25, 0.5, 0.25},            // halves
    };
    for (const Weights& weights : kernels) {
        EXPECT_EQ(convolved(61, 37, page.levels, weights, true),
                  reference::filteredRows(61, 37, page.levels, weights))
            << testing::PrintToString(weights);
        EXPECT_EQ(convolved(61, 37, page.levels, weights, false),
                  reference::filteredColumns(61, 37, page.levels, weights))
            << testing::PrintToString(weights);
    }
}

TEST(Convolve1D, KeepsTheLowByteOfSumsOfBothSignsInARow) {
    Bytes levels;
    Bytes expected;
    for (int x = 0; x < 64; ++x) {
        levels.push_back(x % 2 == 0 ? 200 : 250);
        // 2 x 200 - 250 and 2 x 250 - 200 - 256; at the ends 1.5 x 200 - 125 and 1.5 x 250 - 100 -
        // 256.
        expected.push_back(x % 2 == 0 ? 150 : 44);
    }
    expected.front() = 175;
    expected.back() = 19;
    EXPECT_EQ(convolved(64, 1, levels, {-0.5, 2, -0.5}, true), expected);
    EXPECT_EQ(convolved(1, 64, levels, {-0.5, 2, -0.5}, false), expected);
}

// Sums of few low levels, a hair's breadth below and above halves.
TEST(Convolve1D, RoundsAsDemandedHoweverNearASumIsToAHalf) {
    GreyPage page = stencil_pages::noisePage(64, 8, 11);
    for (std::uint8_t& level : page.levels) {
        level = static_cast<std::uint8_t>(level % 4 + (level / 4 % 2) * 252);
    }
    for (int exponent = 6; exponent <= 54; ++exponent) {
        for (const double sign : {-1.0, 1.0}) {
            const double side = 0.25 + sign * std::ldexp(1.0, -exponent);
            const Weights weights = {side / 2, side / 2, 1 - 2 * side, side / 2, side / 2};
            EXPECT_EQ(convolved(64, 8, page.levels, weights, true),
                      reference::filteredRows(64, 8, page.levels, weights))
                << exponent;
            EXPECT_EQ(convolved(64, 8, page.levels, weights, false),
                      reference::filteredColumns(64, 8, page.levels, weights))
                << exponent;
        }
    }
}

TEST(EnhGaussianFilterFast, FiltersRowsThenColumnsAndRoundsEachToBytes) {
    const GreyPage page = stencil_pages::noisePage(40, 30, 8);
    const Weights weights = kernel1D(11, 3.0);
    const QMImage rows = convolve1D(imageOf(page), weights.data(), 11, true);
    const QMImage both = convolve1D(rows, weights.data(), 11, false);
    EXPECT_EQ(bytesOf(enh_gaussian_filter_fast(imageOf(page), 11, 3.0)), bytesOf(both));
}

TEST(EnhGaussianFilterFast, IsThatOfTheReference) {
    for (int width = 1; width <= 130; width += 3) {
        const GreyPage page =
            stencil_pages::photographPage(width, 17, static_cast<std::uint32_t>(width));
        for (const int size : {3, 7, 11}) {
            EXPECT_EQ(
                bytesOf(enh_gaussian_filter_fast(imageOf(page), size, 1.4)),
                reference::blurred(static_cast<std::size_t>(width), 17, page.levels, size, 1.4));
        }
    }
}

TEST(EnhGaussianFilterFast, KeepsUniformPagesAsTheyAre) {
    for (int level = 0; level < 256; ++level) {
        const GreyPage page = stencil_pages::uniformPage(14, 9, level);
        EXPECT_EQ(bytesOf(enh_gaussian_filter_fast(imageOf(page), 11, 3.0)), page.levels);
    }
}

TEST(EnhGaussianFilterFast, WithAnEvenSizeKeepsUniformPagesAsTheyAre) {
    for (const int size : {2, 4, 10}) {
        const GreyPage page = stencil_pages::uniformPage(14, 9, 200);
        EXPECT_EQ(bytesOf(enh_gaussian_filter_fast(imageOf(page), size, 3.0)), page.levels);
        EXPECT_EQ(bytesOf(enh_gaussian_filter(imageOf(page), size, 3.0, 2.0)), page.levels);
    }
}

TEST(EnhGaussianFilter, GivesAGreyImage) {
    const Bytes levels = {5, 6, 7, 8, 9, 10};
    const QMImage result = enh_gaussian_filter(QMImage(2, 1, QM_IMG_RGB, levels.data()), 1, 1, 1);
    EXPECT_EQ(result.color, QM_IMG_GRAY);
    EXPECT_EQ(bytesOf(result), (Bytes{5, 6}));
}

TEST(EnhGaussianFilter, SpreadsADotOverItsSurroundings) {
    Bytes levels(9, 0);
    levels[4] = 255;
    // Weights of sigma 0.5: 0.6193 in the middle, 0.0838 beside it, 0.0113 in the corners.
    EXPECT_EQ(bytesOf(enh_gaussian_filter(greyImage(3, 3, levels), 3, 0.5, 0.5)),
              (Bytes{3, 21, 3, 21, 158, 21, 3, 21, 3}));
}

TEST(EnhGaussianFilter, IsThatOfTheReference) {
    for (int width = 1; width <= 40; ++width) {
        const GreyPage page =
            stencil_pages::noisePage(width, 11, static_cast<std::uint32_t>(width));
        for (const int size : {1, 3, 5, 11}) {
            EXPECT_EQ(bytesOf(enh_gaussian_filter(imageOf(page), size, 1.1, 2.3)),
                      reference::blurredAtOnce(static_cast<std::size_t>(width), 11, page.levels,
                                               size, 1.1, 2.3));
        }
    }
}

TEST(EnhGaussianFilter, OfAnEmptyImageIsEmpty) {
    EXPECT_EQ(enh_gaussian_filter(QMImage(0, 4, QM_IMG_GRAY), 3, 1, 1).size(), 0U);
    EXPECT_EQ(enh_gaussian_filter(QMImage(4, 0, QM_IMG_GRAY), 3, 1, 1).size(), 0U);
}

}  // namespace
