#include "enhance/moment_threshold.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string_view>

#include "tests/reference/stencil_tone.h"
#include "tests/unit/enhance/numeric_values.h"
#include "tests/unit/enhance/stencil_pages.h"

namespace {

using numeric_values::LevelCount;
using numeric_values::ThresholdCase;
using stencil_pages::Bytes;
using stencil_pages::greyImage;

Bytes pixelsOf(const ThresholdCase& fixed) {
    Bytes pixels;
    for (const LevelCount& entry : fixed.histogram) {
        pixels.insert(pixels.end(), static_cast<std::size_t>(entry.count),
                      static_cast<std::uint8_t>(entry.level));
    }
    return pixels;
}

int thresholdOf(const Bytes& pixels) {
    return thresh_global_moments(greyImage(static_cast<int>(pixels.size()), 1, pixels));
}

void expectThresholds(std::string_view reason) {
    int cases = 0;
    for (const ThresholdCase& fixed : numeric_values::kThresholds) {
        if (fixed.reason == reason) {
            EXPECT_EQ(thresholdOf(pixelsOf(fixed)), fixed.threshold)
                << fixed.histogram[0].level << " and others";
            ++cases;
        }
    }
    EXPECT_GT(cases, 2);
}

TEST(ThreshGlobalMoments, IsTheFirstLevelWhoseCumulativeShareExceedsTheShareOfBlack) {
    expectThresholds("found");
}

TEST(ThreshGlobalMoments, PassesOverALevelWhoseCumulativeShareEqualsTheShareOfBlack) {
    // Half black and half white: the moments give levels 0 and 255 and a share of 0.5.
    EXPECT_EQ(thresholdOf({0, 255}), 255);
    expectThresholds("equal passed over");
}

TEST(ThreshGlobalMoments, Is128WhereTheDiscriminantIsNegative) {
    expectThresholds("negative");
}

TEST(ThreshGlobalMoments, Is128WhereTheDiscriminantIsNotFinite) {
    expectThresholds("not finite");
}

TEST(ThreshGlobalMoments, IsMinusOneWhereNoLevelIsReached) {
    expectThresholds("not reached");
}

TEST(ThreshGlobalMoments, OfEveryUniformPageIs128) {
    for (int level = 0; level < 256; ++level) {
        EXPECT_EQ(thresholdOf(Bytes(1000, static_cast<std::uint8_t>(level))), 128) << level;
    }
}

TEST(ThreshGlobalMoments, OfAnEmptyPageIs128) {
    EXPECT_EQ(thresh_global_moments(QMImage(0, 5, QM_IMG_GRAY)), 128);
}

TEST(ThreshGlobalMoments, DoesNotDependOnTheOrderOfThePixels) {
    Bytes pixels = stencil_pages::photographPage(64, 48, 4).levels;
    const int threshold = thresholdOf(pixels);
    std::reverse(pixels.begin(), pixels.end());
    EXPECT_EQ(thresholdOf(pixels), threshold);
    std::sort(pixels.begin(), pixels.end());
    EXPECT_EQ(thresholdOf(pixels), threshold);
}

TEST(ThreshGlobalMoments, CountsOneByteAPixelWhateverTheLayout) {
    Bytes bytes = {0, 0, 128, 255};
    bytes.resize(12, 77);
    const int threshold = thresholdOf({0, 0, 128, 255});
    EXPECT_EQ(thresh_global_moments(QMImage(2, 2, QM_IMG_RGB, bytes.data())), threshold);
    EXPECT_NE(thresholdOf(bytes), threshold);
}

TEST(ThreshGlobalMoments, OfAnyPageIsThatOfTheReference) {
    for (std::uint32_t seed = 0; seed < 200; ++seed) {
        const int width = 1 + static_cast<int>(seed);
        for (const auto& page : {stencil_pages::noisePage(width, 9, seed),
                                 stencil_pages::photographPage(width, 9, seed),
                                 stencil_pages::lineArtPage(width, 9, seed)}) {
            EXPECT_EQ(thresholdOf(page.levels), reference::momentThreshold(page.levels)) << seed;
        }
    }
}

TEST(ThreshGlobalMoments, OfPagesOfFewLevelsIsThatOfTheReference) {
    stencil_pages::Noise noise(3);
    for (int i = 0; i < 4000; ++i) {
        Bytes levels(static_cast<std::size_t>(2 + i % 4));
        for (std::uint8_t& level : levels) {
            level = static_cast<std::uint8_t>(noise.below(256));
        }
        const Bytes pixels =
            stencil_pages::fewLevelsPage(1 + noise.below(300), 1, levels, i % 3 == 0, noise).levels;
        EXPECT_EQ(thresholdOf(pixels), reference::momentThreshold(pixels)) << i;
    }
}

}  // namespace
