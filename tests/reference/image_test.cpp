// Checks loading, tone and transforms against values worked out by hand.
#include <gtest/gtest.h>

#include <vector>

#include "tests/reference/draw_line.h"
#include "tests/reference/grey_image.h"
#include "tests/reference/test_pages.h"
#include "tests/reference/tone.h"
#include "tests/reference/transforms.h"

namespace reference {
namespace {

TEST(ReferenceImage, LoadingKeepsTheBytesBehindThePixelsUpToTheStride) {
    const GreyImage image = imageFromArray({1, 2, 3, 4, 5, 6, 7, 8, 9, 10}, 2, 2, 5);
    EXPECT_EQ(image.stride, 4U);
    EXPECT_EQ(image.bytes, (Bytes{1, 2, 3, 4, 6, 7, 8, 9}));
}

TEST(ReferenceImage, LoadingRowsShorterThanTheStrideLeavesZerosBehind) {
    EXPECT_EQ(imageFromArray({1, 2, 3, 4, 5, 6}, 3, 2, 3).bytes, (Bytes{1, 2, 3, 0, 4, 5, 6, 0}));
}

TEST(ReferenceImage, APixelOutsideTheImageIsDropped) {
    GreyImage image = filledImage(2, 1, 0);
    setPixel(image, 2, 0, 9);
    setPixel(image, -1, 0, 9);
    setPixel(image, 0, 1, 9);
    setPixel(image, 1, 0, 7);
    EXPECT_EQ(image.bytes, (Bytes{0, 7, 0, 0}));
}

TEST(ReferenceTone, NoBrightnessAndNoContrastKeepEveryLevel) {
    const ToneTable table = lightTable(0, 0);
    for (std::size_t level = 0; level < 256; ++level) {
        EXPECT_EQ(table[level], level);
    }
}

TEST(ReferenceTone, BrightnessShiftsLevelsUntilTheyAreWhite) {
    const ToneTable table = lightTable(200, 0);
    EXPECT_EQ(table[0], 200);
    EXPECT_EQ(table[54], 254);
    EXPECT_EQ(table[55], 255);
    EXPECT_EQ(table[255], 255);
}

TEST(ReferenceTone, ContrastTurnsLevelsAboutTheMiddle) {
    const ToneTable steeper = lightTable(0, 50);
    EXPECT_EQ(steeper[0], 0);
    EXPECT_EQ(steeper[128], 128);
    EXPECT_EQ(steeper[129], 130);
    EXPECT_EQ(lightTable(0, -100)[7], 128);
    EXPECT_EQ(lightTable(255, 0)[0], 255);
}

TEST(ReferenceTone, ContrastBelowMinus100TurnsTheRampAround) {
    EXPECT_EQ(lightTable(0, -200)[255], 1);
    EXPECT_EQ(lightTable(0, -200)[0], 255);
}

TEST(ReferenceTransforms, RotatingReversesRowsAndColumnsAndClearsPadding) {
    const GreyImage image = imageFromArray({1, 2, 3, 9, 4, 5, 6, 9}, 3, 2, 4);
    EXPECT_EQ(rotate180(image).bytes, (Bytes{6, 5, 4, 0, 3, 2, 1, 0}));
}

TEST(ReferenceTransforms, MirroringReversesColumnsAndClearsPadding) {
    const GreyImage image = imageFromArray({1, 2, 3, 9, 4, 5, 6, 9}, 3, 2, 4);
    EXPECT_EQ(mirror(image).bytes, (Bytes{3, 2, 1, 0, 6, 5, 4, 0}));
}

TEST(ReferenceTransforms, NegativeComplementsPaddingToo) {
    EXPECT_EQ(negative(rowImage({0, 1, 255})).bytes, (Bytes{255, 254, 0, 255}));
}

TEST(ReferenceTransforms, ExpandingPutsTheBottomMarginFirst) {
    const GreyImage larger = expand(rowImage({5}), {1, 2, 0, 1}, 7);
    EXPECT_EQ(larger.width, 2U);
    EXPECT_EQ(larger.height, 4U);
    const Bytes expected = {7, 7, 7, 7, 7, 5, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7};
    EXPECT_EQ(larger.bytes, expected);
}

TEST(ReferenceTransforms, CentringLeavesTheOddDotOnTheRight) {
    EXPECT_EQ(makeCenter(rowImage({5, 6}), 5).bytes, (Bytes{0, 5, 6, 0, 0, 0, 0, 0}));
    EXPECT_EQ(makeCenter(rowImage({5, 6}), 2).width, 2U);
}

TEST(ReferenceTransforms, ALineHoldsBothItsEnds) {
    EXPECT_EQ(linePoints(0, 3, 0, 1), (std::vector<Point>{{0, 0}, {1, 0}, {2, 1}, {3, 1}}));
    EXPECT_EQ(linePoints(5, 5, 5, 5), (std::vector<Point>{{5, 5}}));
    EXPECT_EQ(linePoints(1, 0, 2, 0), (std::vector<Point>{{1, 2}, {0, 1}, {0, 0}}));
}

TEST(ReferenceTransforms, ALineLeavesOutItsDotsOutsideTheImage) {
    GreyImage image = filledImage(4, 1, 0);
    drawLine(image, 2, 9, 0, 0, 8);
    EXPECT_EQ(image.bytes, (Bytes{0, 0, 8, 8}));
}

}  // namespace
}  // namespace reference
