#include "enhance/tattoo_dithering.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "enhance/edge_diffusion.h"
#include "enhance/grey_conversion.h"
#include "enhance/moment_threshold.h"
#include "enhance/piecewise_gamma.h"
#include "enhance/unsharp_mask.h"
#include "tests/reference/stencil.h"
#include "tests/unit/enhance/stencil_pages.h"

namespace {

using stencil_pages::Bytes;
using stencil_pages::bytesOf;
using stencil_pages::greyImage;
using stencil_pages::GreyPage;
using stencil_pages::imageOf;

using Pipeline = QMImage (*)(const QMImage&);

class Stencil : public testing::TestWithParam<Pipeline> {};

/// The steps of a stencil one after the other: the threshold is that of the page before its
/// tones are bent, and X8 bends them at that threshold.
Bytes stepByStep(const QMImage& image, bool x8) {
    QMImage grey = cvtGray(image);
    const int threshold = thresh_global_moments(grey);
    if (x8) {
        enh_piecewise_gamma(grey, threshold, 0.5F, 1.5F);
    } else {
        enh_piecewise_gamma(grey, 64, 0.85F, 0.7F);
    }
    return bytesOf(edf_cus(enh_unsharp_mask(grey, 300.0F, 11), threshold));
}

void expectStepByStep(const QMImage& image) {
    EXPECT_EQ(bytesOf(qmTattooDithering(image)), stepByStep(image, false));
    EXPECT_EQ(bytesOf(qmTattooDitheringX8(image)), stepByStep(image, true));
}

TEST(StencilSteps, FollowOneAnotherOnPagesOfEveryKind) {
    expectStepByStep(imageOf(stencil_pages::noisePage(90, 60, 1)));
    expectStepByStep(imageOf(stencil_pages::photographPage(90, 60, 2)));
    expectStepByStep(imageOf(stencil_pages::lineArtPage(90, 60, 3)));
}

TEST(StencilSteps, TakeAThresholdOf128AsItIs) {
    const QMImage image = greyImage(2, 1, {61, 62});
    ASSERT_EQ(thresh_global_moments(image), 128);
    expectStepByStep(image);
    // X8 lifts 61 to 128 × √(61 ÷ 128) = 88, which stays black and hands 44 on: 89 + 44 is white.
    // The other stencil leaves 61 and 62 as they are: 62 + 31 stays black.
    EXPECT_EQ(bytesOf(qmTattooDitheringX8(image)), (Bytes{0, 255}));
    EXPECT_EQ(bytesOf(qmTattooDithering(image)), (Bytes{0, 0}));
}

TEST(StencilSteps, TakeAThresholdOfMinus1AsItIs) {
    const QMImage image = greyImage(2, 2, {151, 151, 153, 153});
    ASSERT_EQ(thresh_global_moments(image), -1);
    expectStepByStep(image);
    EXPECT_EQ(bytesOf(qmTattooDithering(image))[0], 255);
    EXPECT_EQ(bytesOf(qmTattooDitheringX8(image))[0], 255);
}

TEST(StencilSteps, TakeAThresholdOf255AsItIs) {
    const QMImage image = greyImage(2, 1, {0, 255});
    ASSERT_EQ(thresh_global_moments(image), 255);
    expectStepByStep(image);
    // Only above 255 is white.
    EXPECT_EQ(bytesOf(qmTattooDitheringX8(image)), (Bytes{0, 0}));
}

TEST_P(Stencil, OfAnImageWithoutPixelsIsACopy) {
    for (const auto& [width, height] : {std::pair{0, 5}, std::pair{5, 0}, std::pair{0, 0}}) {
        const QMImage image(width, height, QM_IMG_RGBA);
        const QMImage result = GetParam()(image);
        EXPECT_EQ(result.width, width);
        EXPECT_EQ(result.height, height);
        EXPECT_EQ(result.color, QM_IMG_RGBA);
        EXPECT_EQ(result.channels, 4);
    }
}

TEST_P(Stencil, OfAnImageWithoutABufferIsACopy) {
    const QMImage result = GetParam()(QMImage());
    EXPECT_EQ(result.width, 0);
    EXPECT_EQ(result.height, 0);
    EXPECT_EQ(result.color, QM_IMG_BGR);
}

TEST_P(Stencil, IsGreyAndOfTheSameSizeWhateverTheInput) {
    const Bytes bytes = stencil_pages::noisePage(60, 40, 9).levels;
    for (int color = -1; color < 6; ++color) {
        const QMImage result = GetParam()(QMImage(30, 20, QM_IMG_COLOR{color}, bytes.data()));
        EXPECT_EQ(result.color, QM_IMG_GRAY);
        EXPECT_EQ(result.channels, 1);
        EXPECT_EQ(result.width, 30);
        EXPECT_EQ(result.height, 20);
    }
}

TEST_P(Stencil, OfAColourImageIsThatOfItsGreyLevels) {
    const Bytes bytes = stencil_pages::noisePage(120, 40, 10).levels;
    for (const QM_IMG_COLOR color : {QM_IMG_BGR, QM_IMG_RGB, QM_IMG_BGRA, QM_IMG_RGBA}) {
        const QMImage image(30, 40, color, bytes.data());
        EXPECT_EQ(bytesOf(GetParam()(image)), bytesOf(GetParam()(cvtGray(image))));
    }
}

TEST_P(Stencil, HasNothingButBlackAndWhite) {
    const Bytes result = bytesOf(GetParam()(imageOf(stencil_pages::photographPage(150, 90, 5))));
    const auto black = std::count(result.begin(), result.end(), std::uint8_t{0});
    const auto white = std::count(result.begin(), result.end(), std::uint8_t{255});
    EXPECT_GT(black, 1000);
    EXPECT_GT(white, 1000);
    EXPECT_EQ(black + white, 150 * 90);
}

TEST_P(Stencil, LeavesTheInputAsItIs) {
    const GreyPage page = stencil_pages::noisePage(50, 40, 12);
    const QMImage image = imageOf(page);
    GetParam()(image);
    EXPECT_EQ(bytesOf(image), page.levels);
    EXPECT_EQ(image.color, QM_IMG_GRAY);
}

TEST_P(Stencil, GivesTheSameResultAgain) {
    const QMImage image = imageOf(stencil_pages::photographPage(70, 40, 13));
    const Bytes first = bytesOf(GetParam()(image));
    GetParam()(imageOf(stencil_pages::noisePage(31, 17, 1)));
    EXPECT_EQ(bytesOf(GetParam()(image)), first);
}

TEST_P(Stencil, OfBlackIsBlackAndOfWhiteWhite) {
    EXPECT_EQ(bytesOf(GetParam()(imageOf(stencil_pages::uniformPage(40, 30, 0)))), Bytes(1200, 0));
    EXPECT_EQ(bytesOf(GetParam()(imageOf(stencil_pages::uniformPage(40, 30, 255)))),
              Bytes(1200, 255));
}

INSTANTIATE_TEST_SUITE_P(Types, Stencil, testing::Values(qmTattooDithering, qmTattooDitheringX8),
                         [](const auto& type) { return type.index == 0 ? "Tattoo" : "TattooX8"; });

// Rows of 40 pixels, 44 bytes apart, give rows of 40 dots, 48 bytes apart.
TEST(MakeStencil, ReadsAndWritesRowsAsFarApartAsItIsTold) {
    const stencil_pages::GreyPage page = stencil_pages::photographPage(44, 21, 3);
    stencil_pages::Bytes packed;
    for (std::size_t y = 0; y < 21; ++y) {
        const auto row = page.levels.begin() + static_cast<std::ptrdiff_t>(44 * y);
        packed.insert(packed.end(), row, row + 40);
    }
    stencil_pages::Bytes dots(48 * 21, 77);
    makeStencil({page.levels.data(), 44, 40, 21}, StencilType::TattooX8, dots.data(), 48);
    const stencil_pages::Bytes expected = reference::stencil(40, 21, packed, true);
    for (std::size_t i = 0; i < dots.size(); ++i) {
        EXPECT_EQ(dots[i], i % 48 < 40 ? expected[i / 48 * 40 + i % 48] : 77) << i;
    }
}

}  // namespace
