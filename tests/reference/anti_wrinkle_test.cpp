// Checks the anti-wrinkle frame against sizes worked out by hand.
#include <gtest/gtest.h>

#include "tests/reference/anti_wrinkle.h"

namespace reference {
namespace {

TEST(ReferenceAntiWrinkle, BarsAreRoundedToTheNearestDot) {
    const std::uint32_t expected[] = {12, 24, 35, 47, 59};
    for (int level = 1; level <= 5; ++level) {
        EXPECT_EQ(frameSizeOf(level, "A4").lineV, expected[level - 1]);
    }
    EXPECT_EQ(frameSizeOf(3, "A4").lineH, 12U);
}

TEST(ReferenceAntiWrinkle, TheFrameSizeFollowsThePageSizeName) {
    EXPECT_EQ(frameSizeOf(1, "Letter").width, 2480U + 24);
    EXPECT_EQ(frameSizeOf(1, "Letter").height, 3035U + 24);
    EXPECT_EQ(frameSizeOf(1, "Tattoo_A5").width, 2362U + 24);
    EXPECT_EQ(frameSizeOf(1, "Tattoo_A5").height, 1394U + 24);
    EXPECT_EQ(frameSizeOf(1, "a4").width, 0U);
    EXPECT_EQ(frameSizeOf(1, "a4").height, 0U);
}

TEST(ReferenceAntiWrinkle, AnA4PageSmallerThanTheFrameIsEnlarged) {
    const FramedImage framed = antiWrinkleFrame(filledImage(2000, 3000, 0), 1, "A4", 1);
    EXPECT_EQ(framed.image.width, 2386U);
    EXPECT_EQ(framed.image.height, 3272U);
    const Lines expected = {
        "DEBUG:EnableAntiWrink: AntiWrinkle level: 1, line_v: 12 points, line_h: 12 points.",
        "DEBUG:EnableAntiWrink: Page size is A4, CanvasWidth: 2386, CanvasHeight: 3272",
        "DEBUG:EnableAntiWrink: Image width is less than canvas width, exPoints: 193",
        "DEBUG:EnableAntiWrink: Image height is less than canvas height, eyPoints: 136",
        "DEBUG:EnableAntiWrink: Image expanded successfully.",
        "DEBUG:EnableAntiWrink: Drawing left line. point(0, 0, 12, 3272)",
        "DEBUG:EnableAntiWrink: Drawing top line. point(0, 0, 2386, 12)",
        "DEBUG:EnableAntiWrink: Drawing right line. point(2374, 0, 2386, 3272)",
        "DEBUG:EnableAntiWrink: Drawing bottom line. point(0, 3260, 2386, 3272)"};
    EXPECT_EQ(framed.log, expected);
}

TEST(ReferenceAntiWrinkle, BarsMarginAndPageLieInsideEachOther) {
    const GreyImage image = antiWrinkleFrame(filledImage(2000, 3000, 0), 1, "A4", 1).image;
    EXPECT_EQ(pixelAt(image, 11, 1000), 255);
    EXPECT_EQ(pixelAt(image, 12, 1000), 1);
    EXPECT_EQ(pixelAt(image, 192, 1000), 1);
    EXPECT_EQ(pixelAt(image, 193, 1000), 0);
    EXPECT_EQ(pixelAt(image, 2192, 1000), 0);
    EXPECT_EQ(pixelAt(image, 2193, 1000), 1);
    EXPECT_EQ(pixelAt(image, 2373, 1000), 1);
    EXPECT_EQ(pixelAt(image, 2374, 1000), 255);
    EXPECT_EQ(pixelAt(image, 1000, 11), 255);
    EXPECT_EQ(pixelAt(image, 1000, 12), 1);
    EXPECT_EQ(pixelAt(image, 1000, 136), 0);
    EXPECT_EQ(pixelAt(image, 1000, 3259), 1);
    EXPECT_EQ(pixelAt(image, 1000, 3260), 255);
    // Two bytes pad each row of 2386.
    EXPECT_EQ(image.bytes[2386], 1);
}

TEST(ReferenceAntiWrinkle, TheFrameIsCentredOnALargerPage) {
    const FramedImage framed = antiWrinkleFrame(filledImage(1500, 1500, 0), 2, "Tattoo_A6", 1);
    EXPECT_EQ(framed.image.width, 1500U);
    EXPECT_EQ(framed.image.height, 1500U);
    EXPECT_EQ(framed.log[2],
              "DEBUG:EnableAntiWrink: Image width is greater than canvas width, offset.x: 135");
    EXPECT_EQ(framed.log[3],
              "DEBUG:EnableAntiWrink: Image height is greater than canvas height, offset.y: 41");
    EXPECT_EQ(pixelAt(framed.image, 134, 700), 0);
    EXPECT_EQ(pixelAt(framed.image, 135, 700), 255);
    EXPECT_EQ(pixelAt(framed.image, 135 + 1228, 700), 255);
    EXPECT_EQ(pixelAt(framed.image, 135 + 1229, 700), 0);
}

TEST(ReferenceAntiWrinkle, AnOddDifferenceLeavesThePageOneDotShort) {
    const FramedImage framed = antiWrinkleFrame(filledImage(1999, 3272, 0), 1, "A4", 1);
    EXPECT_EQ(framed.image.width, 2385U);
    EXPECT_EQ(pixelAt(framed.image, 2384, 1000), 255);
    EXPECT_EQ(framed.image.bytes[2385], 1);
}

TEST(ReferenceAntiWrinkle, APageSizeWithoutFrameDrawsNothingButTracesItsEmptyBars) {
    const FramedImage framed = antiWrinkleFrame(filledImage(10, 10, 0), 1, "A3", 1);
    EXPECT_EQ(framed.image.bytes, filledImage(10, 10, 0).bytes);
    const Lines expected = {
        "DEBUG:EnableAntiWrink: AntiWrinkle level: 1, line_v: 12 points, line_h: 12 points.",
        "DEBUG:EnableAntiWrink: Image width is greater than canvas width, offset.x: 5",
        "DEBUG:EnableAntiWrink: Image height is greater than canvas height, offset.y: 5",
        "DEBUG:EnableAntiWrink: Drawing left line. point(5, 5, 0, 5)",
        "DEBUG:EnableAntiWrink: Drawing top line. point(5, 5, 5, 17)",
        "DEBUG:EnableAntiWrink: Drawing right line. point(-7, 5, 5, 5)",
        "DEBUG:EnableAntiWrink: Drawing bottom line. point(5, -7, 5, 5)"};
    EXPECT_EQ(framed.log, expected);
}

}  // namespace
}  // namespace reference
