// Both stencils end on every page. What would not end is stopped by the test's time limit.
#include <gtest/gtest.h>

#include <algorithm>

#include "enhance/moment_threshold.h"
#include "enhance/tattoo_dithering.h"
#include "tests/reference/stencil.h"
#include "tests/reference/stencil_tone.h"
#include "tests/unit/enhance/stencil_pages.h"

namespace {

using stencil_pages::Bytes;
using stencil_pages::bytesOf;
using stencil_pages::GreyPage;
using stencil_pages::imageOf;

bool isBlackAndWhite(const Bytes& dots) {
    return std::all_of(dots.begin(), dots.end(),
                       [](std::uint8_t dot) { return dot == 0 || dot == 255; });
}

using Pipeline = QMImage (*)(const QMImage&);

class StencilEnds : public testing::TestWithParam<Pipeline> {
protected:
    void expectDots(const GreyPage& page) {
        const Bytes dots = bytesOf(GetParam()(imageOf(page)));
        ASSERT_EQ(dots.size(), page.levels.size());
        ASSERT_TRUE(isBlackAndWhite(dots));
    }

    void expectReferenceDots(const GreyPage& page) {
        const bool x8 = GetParam() == qmTattooDitheringX8;
        ASSERT_EQ(bytesOf(GetParam()(imageOf(page))),
                  reference::stencil(static_cast<std::size_t>(page.width),
                                     static_cast<std::size_t>(page.height), page.levels, x8));
    }
};

TEST_P(StencilEnds, OnEveryUniformPage) {
    for (int level = 0; level < 256; ++level) {
        SCOPED_TRACE(level);
        expectReferenceDots(stencil_pages::uniformPage(16, 16, level));
        expectReferenceDots(stencil_pages::uniformPage(1, 1, level));
        expectReferenceDots(stencil_pages::uniformPage(101, 7, level));
    }
}

TEST_P(StencilEnds, OnEveryPageWithOneDot) {
    for (int background = 0; background < 256; ++background) {
        for (int dot = 0; dot < 256; ++dot) {
            SCOPED_TRACE(testing::Message() << "dot of " << dot << " on " << background);
            if (dot != background) {
                expectDots(stencil_pages::oneDotPage(16, 16, background, dot));
            }
        }
    }
}

// The share of the dot is so small that the variance of the levels vanishes in single precision.
TEST_P(StencilEnds, OnALargePageWithOneDot) {
    for (const auto& [background, dot] : {std::pair{255, 254}, std::pair{200, 0}}) {
        SCOPED_TRACE(testing::Message() << "dot of " << dot << " on " << background);
        const GreyPage page = stencil_pages::oneDotPage(2480, 3508, background, dot);
        EXPECT_EQ(thresh_global_moments(imageOf(page)), reference::momentThreshold(page.levels));
        expectDots(page);
    }
}

TEST_P(StencilEnds, OnPagesOfTwoToFiveLevels) {
    stencil_pages::Noise noise(77);
    for (int i = 0; i < 2000; ++i) {
        SCOPED_TRACE(i);
        Bytes levels(static_cast<std::size_t>(2 + i % 4));
        for (std::uint8_t& level : levels) {
            level = static_cast<std::uint8_t>(noise.below(256));
        }
        const int width = 1 + noise.below(24);
        const int height = 1 + noise.below(24);
        expectReferenceDots(stencil_pages::fewLevelsPage(width, height, levels, i % 5 < 2, noise));
    }
}

TEST_P(StencilEnds, OnPagesOfNeighbouringLevels) {
    stencil_pages::Noise noise(78);
    for (int level = 0; level + 4 < 256; ++level) {
        Bytes levels;
        for (int count = 0; count < 5; ++count) {
            levels.push_back(static_cast<std::uint8_t>(level + count));
            SCOPED_TRACE(testing::Message() << levels.size() << " levels from " << level);
            expectReferenceDots(stencil_pages::fewLevelsPage(15, 9, levels, false, noise));
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Types, StencilEnds,
                         testing::Values(qmTattooDithering, qmTattooDitheringX8),
                         [](const auto& type) { return type.index == 0 ? "Tattoo" : "TattooX8"; });

// The threshold alone, which decides whether a page ends, on almost blank pages of every size.
TEST(ThresholdEnds, OnAlmostBlankPagesOfAnySize) {
    for (int pixels = 2; pixels < 3000000; pixels = pixels * 3 / 2 + 1) {
        for (const auto& [background, dot] :
             {std::pair{255, 0}, std::pair{255, 254}, std::pair{0, 1}, std::pair{0, 255},
              std::pair{128, 127}, std::pair{77, 200}}) {
            const GreyPage page = stencil_pages::oneDotPage(pixels, 1, background, dot);
            EXPECT_EQ(thresh_global_moments(imageOf(page)), reference::momentThreshold(page.levels))
                << pixels << " pixels, dot of " << dot << " on " << background;
        }
    }
}

}  // namespace
