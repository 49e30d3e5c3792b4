// Brightness and contrast.
#include <climits>
#include <numeric>

#include "tests/unit/image/test_images.h"

namespace {

using reference::Bytes;

// The levels 0 to 255 after Light.
Bytes allLevelsAfter(int brightness, int contrast) {
    Bytes levels(256);
    std::iota(levels.begin(), levels.end(), std::uint8_t{0});
    RasterImage image;
    makeGreyImage(image, 16, 16, levels);
    EXPECT_TRUE(image.Light(brightness, contrast));
    return rowsOf(image);
}

int levelAfter(int level, int brightness, int contrast) {
    return allLevelsAfter(brightness, contrast)[static_cast<std::size_t>(level)];
}

TEST(Light, IsFalseWithoutAnImage) {
    RasterImage image;
    EXPECT_FALSE(image.Light(0, 0));
}

TEST(Light, ChangesNothingAtZeroAndZero) {
    Bytes levels(256);
    std::iota(levels.begin(), levels.end(), std::uint8_t{0});
    EXPECT_EQ(allLevelsAfter(0, 0), levels);
}

TEST(Light, FlattensEverythingAtContrastMinus100) {
    EXPECT_EQ(allLevelsAfter(0, -100), Bytes(256, 128));
    EXPECT_EQ(allLevelsAfter(50, -100), Bytes(256, 178));
    EXPECT_EQ(allLevelsAfter(-50, -100), Bytes(256, 78));
    EXPECT_EQ(allLevelsAfter(200, -100), Bytes(256, 255));
    EXPECT_EQ(allLevelsAfter(-200, -100), Bytes(256, 0));
}

TEST(Light, AddsTheBrightness) {
    EXPECT_EQ(allLevelsAfter(255, 0), Bytes(256, 255));
    EXPECT_EQ(allLevelsAfter(-255, 0), Bytes(256, 0));
    const Bytes levels = allLevelsAfter(200, 0);
    EXPECT_EQ(levels[0], 200);
    EXPECT_EQ(levels[54], 254);
    for (std::size_t level = 55; level < 256; ++level) {
        EXPECT_EQ(levels[level], 255) << level;
    }
    EXPECT_EQ(levelAfter(30, -20, 0), 10);
    EXPECT_EQ(levelAfter(20, -20, 0), 0);
}

TEST(Light, StretchesTheLevelsAroundTheMiddle) {
    // 50 percent more: (level - 128) × 1.5 + 128 + 0.5, cut off.
    EXPECT_EQ(levelAfter(0, 0, 50), 0);
    EXPECT_EQ(levelAfter(43, 0, 50), 1);     // 1.0
    EXPECT_EQ(levelAfter(44, 0, 50), 2);     // 2.5
    EXPECT_EQ(levelAfter(127, 0, 50), 127);  // 127.0
    EXPECT_EQ(levelAfter(128, 0, 50), 128);
    EXPECT_EQ(levelAfter(129, 0, 50), 130);  // 130.0
    EXPECT_EQ(levelAfter(212, 0, 50), 254);  // 254.5
    EXPECT_EQ(levelAfter(213, 0, 50), 255);  // 256.0
}

TEST(Light, CompressesTheLevelsAroundTheMiddle) {
    // Half: (level - 128) × 0.5 + 128 + 0.5, cut off.
    EXPECT_EQ(levelAfter(0, 0, -50), 64);
    EXPECT_EQ(levelAfter(1, 0, -50), 65);  // 65.0
    EXPECT_EQ(levelAfter(2, 0, -50), 65);
    EXPECT_EQ(levelAfter(255, 0, -50), 192);  // 192.0
}

TEST(Light, MirrorsTheLevelsBelowContrastMinus100) {
    EXPECT_EQ(levelAfter(128, 0, -200), 128);
    EXPECT_EQ(levelAfter(100, 0, -200), 156);
    EXPECT_EQ(levelAfter(1, 0, -200), 255);
    EXPECT_EQ(levelAfter(255, 0, -200), 1);
}

TEST(Light, CutsNegativeFractionsOffTowardsZero) {
    // (0 - 128) + 127 + 0.5 = -0.5 and, a level higher, 0.5: both 0.
    EXPECT_EQ(levelAfter(0, -1, 0), 0);
    EXPECT_EQ(levelAfter(1, -1, 0), 0);
    EXPECT_EQ(levelAfter(2, -1, 0), 1);
}

TEST(Light, TakesTheLargestAndSmallestArguments) {
    EXPECT_EQ(allLevelsAfter(INT_MAX, 0), Bytes(256, 255));
    EXPECT_EQ(allLevelsAfter(INT_MIN, 0), Bytes(256, 0));
    EXPECT_EQ(levelAfter(127, 0, INT_MAX), 0);
    EXPECT_EQ(levelAfter(128, 0, INT_MAX), 128);
    EXPECT_EQ(levelAfter(129, 0, INT_MAX), 255);
    EXPECT_EQ(levelAfter(129, 0, INT_MIN), 0);
}

TEST(Light, LeavesThePaletteAndThePadding) {
    RasterImage image;
    makeImage(image, 3, 1, 8, {10, 20, 30, 40});
    const std::vector<tagRGBQUAD> palette = paletteOf(image);
    image.Light(5, 0);
    EXPECT_EQ(rowsOf(image), (Bytes{15, 25, 35, 40}));
    EXPECT_EQ(paletteOf(image), palette);
}

TEST(Light, KeepsAsManyBitsAsAPixelHas) {
    RasterImage image;
    makeImage(image, 2, 1, 4, {0x5E, 0, 0, 0});
    image.Light(3, 0);  // 5 becomes 8, 14 becomes 17 of which 1 is left
    EXPECT_EQ(rowsOf(image), (Bytes{0x81, 0, 0, 0}));
    makeImage(image, 2, 1, 1, {0x40, 0, 0, 0});
    image.Light(3, 0);  // 0 becomes 3, 1 becomes 4
    EXPECT_EQ(rowsOf(image), (Bytes{0x80, 0, 0, 0}));
}

}  // namespace
