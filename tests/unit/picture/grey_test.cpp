// Grey out of colours.
#include "intake/picture/grey.h"

#include <gtest/gtest.h>

namespace intake::picture {
namespace {

TEST(Grey, KeepsEveryGreyLevel) {
    for (std::uint32_t level = 0; level <= mostLight; ++level) {
        ASSERT_EQ(luma(level, level, level), level);
    }
}

TEST(Grey, IsTheLumaOfTelevision) {
    // 0.299, 0.587 and 0.114 of 255 are 76.245, 149.685 and 29.07.
    EXPECT_EQ(levelOf(luma(mostLight, 0, 0)), 76);
    EXPECT_EQ(levelOf(luma(0, mostLight, 0)), 150);
    EXPECT_EQ(levelOf(luma(0, 0, mostLight)), 29);
}

TEST(Grey, LevelsOfEightBitsComeBack) {
    for (std::uint32_t level = 0; level < 256; ++level) {
        ASSERT_EQ(levelOf(static_cast<std::uint16_t>(level * 257)), level);
    }
    EXPECT_EQ(levelOf(128), 0);
    EXPECT_EQ(levelOf(129), 1) << "129 is more than half of 257";
}

TEST(Grey, WhatIsTransparentIsWhite) {
    EXPECT_EQ(overWhite(0, mostLight), mostLight);
    EXPECT_EQ(overWhite(0, 0), 0U);
    EXPECT_EQ(overWhite(1000, 0), 1000U);
    EXPECT_EQ(overWhite(0, 0x4000), 0x4000U);
    EXPECT_EQ(overWhite(0x8000, 0x8000), 0xc000U) << "halfway from the middle to white";
}

TEST(Grey, InksTakeLightAwayAsInPostScript) {
    EXPECT_EQ(lightOf(0, 0), mostLight);
    EXPECT_EQ(lightOf(0, mostLight), 0U);
    EXPECT_EQ(lightOf(0x9000, 0x9000), 0U) << "more than all of it is all of it";
    EXPECT_EQ(lightOf(0x1000, 0x2000), mostLight - 0x3000);
}

}  // namespace
}  // namespace intake::picture
