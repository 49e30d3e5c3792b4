#include "enhance/unsharp_mask.h"

#include <gtest/gtest.h>

#include "enhance/gaussian.h"
#include "tests/reference/stencil_blur.h"
#include "tests/unit/enhance/stencil_pages.h"

namespace {

using stencil_pages::Bytes;
using stencil_pages::bytesOf;
using stencil_pages::greyImage;
using stencil_pages::GreyPage;
using stencil_pages::imageOf;

Bytes weighted(const Bytes& a, const Bytes& b, float weight) {
    const auto width = static_cast<int>(a.size());
    return bytesOf(add_Weighted(greyImage(width, 1, a), greyImage(width, 1, b), weight));
}

TEST(AddWeighted, AddsTheDifferenceOfTheImagesAndLimitsTheResult) {
    // 4 × 200 - 3 × 100 = 500, 4 × 50 - 3 × 100 = -100, 4 × 100 - 3 × 90 = 130.
    EXPECT_EQ(weighted({200, 50, 100}, {100, 100, 90}, 3.0F), (Bytes{255, 0, 130}));
}

TEST(AddWeighted, RoundsHalvesUp) {
    // 1.5 × 1 - 0, 1.5 × 3 - 0.5 × 1 = 4, 1.5 × 3 - 0.5 × 2 = 3.5.
    EXPECT_EQ(weighted({1, 3, 3}, {0, 1, 2}, 0.5F), (Bytes{2, 4, 4}));
}

TEST(AddWeighted, OfAnyPairOfLevelsIsThatOfTheReference) {
    Bytes a;
    Bytes b;
    for (int i = 0; i < 65536; ++i) {
        a.push_back(static_cast<std::uint8_t>(i / 256));
        b.push_back(static_cast<std::uint8_t>(i % 256));
    }
    for (const float weight :
         {3.0F, 0.1F, 0.7F, 1.5F, -0.3F, 0.0F, -1.0F, 127.0F, -127.0F, 128.0F, -129.0F, 1000.0F}) {
        EXPECT_EQ(weighted(a, b, weight), reference::weightedDifference(a, b, weight)) << weight;
    }
}

// Beyond 32 bits a sum becomes 0, and so does one that is no number.
TEST(AddWeighted, OfAnyPairOfLevelsIsThatOfTheReferenceHoweverLargeTheWeight) {
    const Bytes ends = {0, 1, 2, 127, 128, 254, 255};
    Bytes a;
    Bytes b;
    for (const std::uint8_t one : ends) {
        for (const std::uint8_t other : ends) {
            a.push_back(one);
            b.push_back(other);
        }
    }
    for (const float size : {4095.0F, 4096.0F, 4097.0F, 1e7F, 1e9F, 1e38F, 3.4e38F}) {
        for (const float weight : {size, -size}) {
            EXPECT_EQ(weighted(a, b, weight), reference::weightedDifference(a, b, weight))
                << weight;
        }
    }
    EXPECT_EQ(weighted({255}, {0}, 1e9F), Bytes{0});
}

TEST(AddWeighted, TakesTheSecondImageByTheNumberOfThePixel) {
    const QMImage a = greyImage(2, 2, {10, 10, 10, 10});
    const QMImage b = greyImage(3, 2, {10, 9, 8, 7, 6, 5});
    EXPECT_EQ(bytesOf(add_Weighted(a, b, 1.0F)), (Bytes{10, 11, 12, 13}));
}

TEST(AddWeighted, ChangesOneByteAPixelWhateverTheLayout) {
    const QMImage a(1, 1, QM_IMG_BGR, Bytes{10, 20, 30}.data());
    const QMImage result = add_Weighted(a, greyImage(1, 1, {0}), 1.0F);
    EXPECT_EQ(bytesOf(result), (Bytes{20, 20, 30}));
    EXPECT_EQ(result.color, QM_IMG_BGR);
}

TEST(EnhUnsharpMask, IsTheWeightedDifferenceToABlurOfSigma3) {
    const GreyPage page = stencil_pages::noisePage(50, 40, 5);
    const QMImage image = imageOf(page);
    for (const int size : {3, 11}) {
        const QMImage blurred = enh_gaussian_filter_fast(image, size, 3.0);
        EXPECT_EQ(bytesOf(enh_unsharp_mask(image, 300.0F, size)),
                  bytesOf(add_Weighted(image, blurred, 3.0F)));
        EXPECT_EQ(bytesOf(enh_unsharp_mask(image, 75.0F, size)),
                  bytesOf(add_Weighted(image, blurred, 0.75F)));
    }
}

TEST(EnhUnsharpMask, SharpensAnEdge) {
    const Bytes row = {100, 100, 100, 140, 140, 140};
    // A third of the step crosses the edge: blurred to 100, 100, 113, 127, 140, 140. The result is
    // four times the row less three times that.
    EXPECT_EQ(bytesOf(enh_unsharp_mask(greyImage(6, 1, row), 300.0F, 3)),
              (Bytes{100, 100, 61, 179, 140, 140}));
}

TEST(EnhUnsharpMask, ReachesFivePixelsToEachSideWithTheStencilsKernel) {
    Bytes row(41, 200);
    row[20] = 0;
    const Bytes sharp = bytesOf(enh_unsharp_mask(greyImage(41, 1, row), 300.0F, 11));
    for (std::size_t x = 0; x < 41; ++x) {
        const bool reached = x >= 15 && x <= 25 && x != 20;
        EXPECT_EQ(sharp[x] > 200, reached) << x;
    }
    EXPECT_EQ(sharp[20], 0);
}

TEST(EnhUnsharpMask, OfAmountZeroOrOnAUniformPageChangesNothing) {
    const GreyPage noise = stencil_pages::noisePage(20, 20, 6);
    EXPECT_EQ(bytesOf(enh_unsharp_mask(imageOf(noise), 0.0F, 11)), noise.levels);
    for (int level = 0; level < 256; ++level) {
        const GreyPage page = stencil_pages::uniformPage(12, 5, level);
        EXPECT_EQ(bytesOf(enh_unsharp_mask(imageOf(page), 300.0F, 11)), page.levels);
    }
}

TEST(EnhUnsharpMask, IsThatOfTheReferenceAtEveryWidth) {
    for (int width = 1; width <= 130; ++width) {
        const auto seed = static_cast<std::uint32_t>(width);
        for (const GreyPage& page : {stencil_pages::photographPage(width, 14, seed),
                                     stencil_pages::lineArtPage(width, 14, seed)}) {
            EXPECT_EQ(
                bytesOf(enh_unsharp_mask(imageOf(page), 300.0F, 11)),
                reference::sharpened(static_cast<std::size_t>(width), 14, page.levels, 300.0F, 11));
        }
    }
}

}  // namespace
