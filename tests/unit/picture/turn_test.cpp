// The eight ways of lying.
#include "intake/picture/turn.h"

#include <gtest/gtest.h>

#include <string>

namespace intake::picture {
namespace {

GreyImage image(unsigned width, const std::string& dots) {
    GreyImage result(width, static_cast<unsigned>(dots.size()) / width);
    result.dots.assign(dots.begin(), dots.end());
    return result;
}

std::string text(const GreyImage& image) {
    return {image.dots.begin(), image.dots.end()};
}

// abc
// def
const GreyImage sImage = image(3, "abcdef");

std::string textOf(Turn turn) {
    return text(turned(sImage, turn));
}

TEST(Turn, HasTheDotsWhereTheyBelong) {
    EXPECT_EQ(textOf(upright), "abcdef");
    EXPECT_EQ(textOf(half), "fedcba");
    EXPECT_EQ(textOf(mirrored), "cbafed");
    EXPECT_EQ(textOf(quarterLeft), "cfbead") << "the right column is on top";
    EXPECT_EQ(textOf(quarterRight), "daebfc") << "the left column is on top, from below";
}

TEST(Turn, ByAQuarterChangesTheSides) {
    const GreyImage result = turned(sImage, quarterLeft);
    EXPECT_EQ(result.width, 2U);
    EXPECT_EQ(result.height, 3U);
}

// The first row and the first column of a picture that is to be turned, by the definition of the
// tag: 6 has its first row on the right and its first column at the top.
TEST(Turn, OfAnOrientationPutsTheFirstRowAndColumnWhereExifSays) {
    const auto of = [](int orientation) { return textOf(turnOfOrientation(orientation)); };
    EXPECT_EQ(of(1), "abcdef");
    EXPECT_EQ(of(2), "cbafed") << "row at the top, column on the right";
    EXPECT_EQ(of(3), "fedcba") << "bottom, right";
    EXPECT_EQ(of(4), "defabc") << "bottom, left";
    EXPECT_EQ(of(5), "adbecf") << "left, top";
    EXPECT_EQ(of(6), "daebfc") << "right, top";
    EXPECT_EQ(of(7), "fcebda") << "right, bottom";
    EXPECT_EQ(of(8), "cfbead") << "left, bottom";
}

TEST(Turn, OfAnUnknownOrientationIsNone) {
    for (const int orientation : {-1, 0, 9, 65535}) {
        EXPECT_EQ(turnOfOrientation(orientation), upright) << orientation;
    }
}

TEST(Turn, CombinedIsOneAfterTheOther) {
    for (int first = 1; first <= 8; ++first) {
        for (int second = 1; second <= 8; ++second) {
            const Turn one = turnOfOrientation(first);
            const Turn other = turnOfOrientation(second);
            EXPECT_EQ(text(turned(turned(sImage, one), other)), textOf(combined(one, other)))
                << first << " and " << second;
        }
    }
}

}  // namespace
}  // namespace intake::picture
