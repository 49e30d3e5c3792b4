#include "enhance/edge_diffusion.h"

#include <gtest/gtest.h>

#include "tests/reference/stencil.h"
#include "tests/unit/enhance/stencil_pages.h"

namespace {

using stencil_pages::Bytes;
using stencil_pages::bytesOf;
using stencil_pages::greyImage;
using stencil_pages::GreyPage;
using stencil_pages::imageOf;

Bytes diffused(int width, int height, const Bytes& levels, int threshold) {
    return bytesOf(edf_cus(greyImage(width, height, levels), threshold));
}

/// The lowest level at `place` that turns white; the other pixels keep theirs. 256 for none.
int flipLevel(int width, int height, Bytes levels, std::size_t place, int threshold) {
    for (int level = 0; level < 256; ++level) {
        levels[place] = static_cast<std::uint8_t>(level);
        if (diffused(width, height, levels, threshold)[place] == 255) {
            return level;
        }
    }
    return 256;
}

TEST(EdfCus, IsWhiteStrictlyAboveTheThreshold) {
    EXPECT_EQ(diffused(1, 1, {128}, 128), Bytes{0});
    EXPECT_EQ(diffused(1, 1, {129}, 128), Bytes{255});
    EXPECT_EQ(diffused(1, 1, {255}, 255), Bytes{0});
    EXPECT_EQ(diffused(1, 1, {0}, 0), Bytes{0});
    EXPECT_EQ(diffused(1, 1, {0}, -1), Bytes{255});
}

TEST(EdfCus, GivesAGreyImageOfTheSameSize) {
    const QMImage result = edf_cus(greyImage(3, 2, Bytes(6, 100)), 128);
    EXPECT_EQ(result.width, 3);
    EXPECT_EQ(result.height, 2);
    EXPECT_EQ(result.color, QM_IMG_GRAY);
    EXPECT_EQ(result.channels, 1);
}

TEST(EdfCus, HandsTheWholeValueOfABlackDotOn) {
    // 100 stays black and hands 100 × 0.505786 = 50.58 on: the next pixel is 77 + 50.58 = 127.58.
    EXPECT_EQ(flipLevel(2, 1, {100, 0}, 1, 127), 77);
    EXPECT_EQ(flipLevel(2, 1, {100, 0}, 1, 128), 78);
}

TEST(EdfCus, TakesAWhiteDotsFull255OffOnTheBorder) {
    // 200 turns white and hands (200 - 255) × 0.505786 = -27.82 on.
    EXPECT_EQ(flipLevel(2, 1, {200, 0}, 1, 128), 156);
}

// Row 0 is 0, 0, 200 and black at a threshold of 200, so the error of 200 reaches the three
// pixels below: 45.24, 25.77 and 48.64; those hand their own on to the right.
TEST(EdfCus, WeighsTheCellsBelowAndToTheLeft) {
    EXPECT_EQ(flipLevel(3, 2, {0, 0, 200, 0, 0, 0}, 3, 200), 155);
    // 25.77 + 45.24 × 0.505786 = 48.65
    EXPECT_EQ(flipLevel(3, 2, {0, 0, 200, 0, 0, 0}, 4, 200), 152);
    // 48.64 + 48.65 × 0.505786 - 45.24 × 0.052926 = 70.85
    EXPECT_EQ(flipLevel(3, 2, {0, 0, 200, 0, 0, 0}, 5, 200), 130);
}

// Row 0 is 200, 0, 0: its values become 200, 101.16 and 101.16 × 0.505786 - 200 × 0.052926 =
// 40.58.
TEST(EdfCus, WeighsTheCellsToTheRightAndBelow) {
    EXPECT_EQ(flipLevel(3, 2, {200, 0, 0, 0, 0, 0}, 1, 200), 99);
    EXPECT_EQ(flipLevel(3, 2, {200, 0, 0, 0, 0, 0}, 2, 200), 160);
    // 200 × 0.243191 + 101.16 × 0.128835 + 40.58 × 0.226194 = 70.85
    EXPECT_EQ(flipLevel(3, 2, {200, 0, 0, 0, 0, 0}, 3, 200), 130);
    // 70.85 × 0.505786 - 200 × 0.111078 + 101.16 × 0.243191 + 40.58 × 0.128835 = 43.45
    EXPECT_EQ(flipLevel(3, 2, {200, 0, 0, 0, 0, 0}, 4, 200), 157);
}

// On 3 × 3 pixels only the middle lies inside. It is 255 and white.
TEST(EdfCus, RelievesAWhiteDotInsideForEachBlackNeighbourAboveAndToTheLeft) {
    // Both black: 255 × 2 × 0.1427 = 72.78 is left, 36.81 of it goes to the right.
    EXPECT_EQ(flipLevel(3, 3, {0, 0, 0, 0, 255, 0, 0, 0, 0}, 5, 128), 92);
    // One black: 36.39, of it 18.40.
    EXPECT_EQ(flipLevel(3, 3, {0, 255, 0, 0, 255, 0, 0, 0, 0}, 5, 128), 110);
    EXPECT_EQ(flipLevel(3, 3, {0, 0, 0, 255, 255, 0, 0, 0, 0}, 5, 128), 110);
    EXPECT_EQ(flipLevel(3, 3, {0, 255, 0, 255, 255, 0, 0, 0, 0}, 5, 128), 129);
}

TEST(EdfCus, GivesNoReliefInTheFirstAndLastRowAndColumn) {
    // A white 255 among black dots leaves nothing to hand on.
    EXPECT_EQ(flipLevel(3, 3, {0, 255, 0, 0, 0, 0, 0, 0, 0}, 2, 128), 129);
    EXPECT_EQ(flipLevel(3, 3, {0, 0, 0, 255, 0, 0, 0, 0, 0}, 4, 128), 129);
    EXPECT_EQ(flipLevel(3, 3, {0, 0, 0, 0, 0, 255, 0, 0, 0}, 8, 128), 129);
    EXPECT_EQ(flipLevel(3, 3, {0, 0, 0, 0, 0, 0, 0, 255, 0}, 8, 128), 129);
    EXPECT_EQ(flipLevel(3, 2, {0, 0, 0, 0, 255, 0}, 5, 128), 129);
    EXPECT_EQ(flipLevel(2, 3, {0, 0, 0, 255, 0, 0}, 5, 128), 129);
}

TEST(EdfCus, ReadsEveryRowFromLeftToRight) {
    // Were the second row read from the right, its 100 would reach the pixel to its left.
    EXPECT_EQ(diffused(2, 2, {0, 0, 100, 100}, 128), (Bytes{0, 0, 0, 255}));
    EXPECT_EQ(diffused(2, 2, {0, 0, 30, 100}, 128), (Bytes{0, 0, 0, 0}));
}

TEST(EdfCus, WithAThresholdOfMinus1StartsWhiteAndTurnsBlackWhereTheErrorIsNegative) {
    EXPECT_EQ(diffused(3, 1, {0, 0, 200}, -1), (Bytes{255, 0, 255}));
}

TEST(EdfCus, OfAnEmptyImageIsEmpty) {
    EXPECT_TRUE(diffused(0, 4, {}, 128).empty());
    EXPECT_TRUE(diffused(4, 0, {}, 128).empty());
}

TEST(EdfCus, IsThatOfTheReferenceAtEveryWidthAndThreshold) {
    for (int width = 1; width <= 130; ++width) {
        for (const int height : {1, 2, 3, 18}) {
            const auto seed = static_cast<std::uint32_t>(width * height);
            const GreyPage page = stencil_pages::noisePage(width, height, seed);
            for (const int threshold : {-1, 0, 100, 128, 200, 255}) {
                EXPECT_EQ(bytesOf(edf_cus(imageOf(page), threshold)),
                          reference::diffuseStencil(static_cast<std::size_t>(width),
                                                    static_cast<std::size_t>(height), page.levels,
                                                    threshold))
                    << width << " x " << height << ", threshold " << threshold;
            }
        }
    }
}

// Rows are worked on eight at a time, and the first and last columns apart from those between.
TEST(EdfCus, OfSomeRowsMoreOrLessThanWholeBandsIsThatOfTheReference) {
    for (const int height : {7, 8, 9, 15, 16, 17, 24, 25, 26, 33}) {
        for (const int width : {1, 2, 3, 8, 40, 49, 50, 51, 57, 58, 64, 129}) {
            const auto seed = static_cast<std::uint32_t>(width + 100 * height);
            const GreyPage page = stencil_pages::photographPage(width, height, seed);
            EXPECT_EQ(bytesOf(edf_cus(imageOf(page), 120)),
                      reference::diffuseStencil(static_cast<std::size_t>(width),
                                                static_cast<std::size_t>(height), page.levels, 120))
                << width << " x " << height;
        }
    }
}

TEST(EdfCus, OfLargePagesIsThatOfTheReference) {
    const GreyPage noise = stencil_pages::noisePage(1003, 131, 5);
    EXPECT_TRUE(bytesOf(edf_cus(imageOf(noise), 128)) ==
                reference::diffuseStencil(1003, 131, noise.levels, 128));
    const GreyPage lines = stencil_pages::lineArtPage(812, 203, 6);
    EXPECT_TRUE(bytesOf(edf_cus(imageOf(lines), 90)) ==
                reference::diffuseStencil(812, 203, lines.levels, 90));
}

TEST(EdfCus, OfFlatGreyIsThatOfTheReference) {
    for (int level = 0; level < 256; ++level) {
        const GreyPage page = stencil_pages::uniformPage(61, 23, level);
        EXPECT_EQ(bytesOf(edf_cus(imageOf(page), 128)),
                  reference::diffuseStencil(61, 23, page.levels, 128))
            << level;
    }
}

}  // namespace
