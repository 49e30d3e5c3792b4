#include "intake/sheet/upright.h"

#include <gtest/gtest.h>

#include "intake/sheet/reading_order.h"

namespace intake::sheet {
namespace {

const sizes::PointSize sLabel{288, 432};
const Rectangle sUpright{100, 100, 388, 532};
const Rectangle sLying{100, 100, 532, 388};

// A word in the middle of both.
Word word(int quarters, double length = 50) {
    return {{200, 200, 200 + length, 210}, quarters};
}

TEST(Upright, PartsWithoutTextTurnAsFarAsTheirShapeAsks) {
    EXPECT_EQ(quartersToUpright(sUpright, {}, sLabel), 0);
    EXPECT_EQ(quartersToUpright(sLying, {}, sLabel), 3) << "counter-clockwise";
    EXPECT_EQ(quartersToUpright(sUpright, {}, {432, 288}), 3);
    EXPECT_EQ(quartersToUpright(sLying, {}, {432, 288}), 0);
    EXPECT_EQ(quartersToUpright(sUpright, {}, {300, 300}), 0) << "a square fits either way";
}

TEST(Upright, PartsTurnSoThatTheirTextIsUpright) {
    EXPECT_EQ(quartersToUpright(sUpright, {word(0)}, sLabel), 0);
    EXPECT_EQ(quartersToUpright(sLying, {word(1)}, sLabel), 3);
    EXPECT_EQ(quartersToUpright(sUpright, {word(2)}, sLabel), 2);
    EXPECT_EQ(quartersToUpright(sLying, {word(3)}, sLabel), 1);
}

TEST(Upright, PartsWhoseTextLiesAcrossTheLabelTurnByTheirShape) {
    EXPECT_EQ(quartersToUpright(sLying, {word(0)}, sLabel), 3);
    EXPECT_EQ(quartersToUpright(sLying, {word(2)}, sLabel), 3);
    EXPECT_EQ(quartersToUpright(sUpright, {word(1)}, sLabel), 0);
    EXPECT_EQ(quartersToUpright(sUpright, {word(3)}, sLabel), 0);
}

TEST(Upright, TheMostTextCounts) {
    EXPECT_EQ(quartersToUpright(sUpright, {word(0, 20), word(2, 50), word(0, 20)}, sLabel), 2);
    EXPECT_EQ(quartersToUpright(sUpright, {word(0, 30), word(2, 50), word(0, 30)}, sLabel), 0);
}

TEST(Upright, TextBesideThePartDoesNotCount) {
    const Word outside{{10, 10, 90, 40}, 2};
    EXPECT_EQ(quartersToUpright(sUpright, {outside, word(0, 5)}, sLabel), 0);
}

TEST(Upright, SquaresTurnAsTheirTextAsks) {
    const Rectangle square{0, 0, 300, 300};
    EXPECT_EQ(quartersToUpright(square, {word(1)}, {200, 200}), 3);
    EXPECT_EQ(quartersToUpright(square, {word(3)}, {200, 200}), 1);
}

TEST(ReadingOrder, GoesRowByRow) {
    std::vector<DotRectangle> parts{
        {300, 12, 500, 200}, {10, 300, 200, 500}, {10, 20, 200, 210}, {300, 290, 500, 490}};
    sortAsRead(parts);
    EXPECT_EQ(
        parts,
        (std::vector<DotRectangle>{
            {10, 20, 200, 210}, {300, 12, 500, 200}, {10, 300, 200, 500}, {300, 290, 500, 490}}));
}

TEST(ReadingOrder, TakesPartsThatAreHardlyBesideEachOtherForTwoRows) {
    std::vector<DotRectangle> parts{{300, 0, 500, 200}, {0, 110, 200, 310}};
    const std::vector<DotRectangle> before = parts;
    sortAsRead(parts);
    EXPECT_EQ(parts, before);
}

TEST(ReadingOrder, OfNothingIsNothing) {
    std::vector<DotRectangle> parts;
    sortAsRead(parts);
    EXPECT_TRUE(parts.empty());
}

}  // namespace
}  // namespace intake::sheet
