// Which of the offered sizes is meant.
#include "sizes/nearness.h"

#include <gtest/gtest.h>

#include <vector>

namespace sizes {
namespace {

// Offered with a page of its own size.
OfferedSize whole(double width, double height) {
    return {inMillimetres(width, height), inMillimetres(width, height)};
}

struct Found {
    std::size_t index;
    bool turned;
    bool exact;
};

void expectFound(const std::vector<OfferedSize>& offered, const NominalSize& wanted,
                 Found expected) {
    const auto found = nearestSize(offered, wanted);
    ASSERT_TRUE(found) << sizeText(wanted);
    EXPECT_EQ(found->index, expected.index) << sizeText(wanted);
    EXPECT_EQ(found->turned, expected.turned) << sizeText(wanted);
    EXPECT_EQ(found->exact, expected.exact) << sizeText(wanted);
}

TEST(NearestSize, IsTheVerySize) {
    expectFound({whole(60, 30), whole(60, 40)}, inMillimetres(60, 40), {1, false, true});
    expectFound({whole(101.6, 152.4)}, inInches(4, 6), {0, false, true});
}

TEST(NearestSize, IsTheVerySizeTurned) {
    expectFound({whole(60, 30), whole(60, 40)}, inMillimetres(40, 60), {1, true, true});
}

TEST(NearestSize, IsTheVerySizeButForWhatIsRoundedAway) {
    expectFound({whole(101.6, 152.4)}, inMillimetres(101.61, 152.39), {0, false, true});
    expectFound({whole(101.6, 152.4)}, inMillimetres(101.62, 152.4), {0, false, false});
}

TEST(NearestSize, IsWithinAMillimetreInBothDirections) {
    expectFound({whole(60, 30)}, inMillimetres(61, 29), {0, false, false});
    expectFound({whole(60, 30)}, inMillimetres(31, 59), {0, true, false});
    EXPECT_FALSE(nearestSize(std::vector{whole(60, 30)}, inMillimetres(61.01, 30)));
    EXPECT_FALSE(nearestSize(std::vector{whole(60, 30)}, inMillimetres(60, 31.01)));
    EXPECT_FALSE(nearestSize(std::vector{whole(60, 30)}, inMillimetres(58.99, 30)));
    EXPECT_FALSE(nearestSize(std::vector{whole(60, 30)}, inMillimetres(60, 28.99)));
}

TEST(NearestSize, IsTheNearestOfSeveral) {
    const std::vector offered{whole(60, 30), whole(61, 30), whole(61, 31)};
    expectFound(offered, inMillimetres(60.9, 30.2), {1, false, false});
    expectFound(offered, inMillimetres(30.8, 61.3), {2, true, false});
}

TEST(NearestSize, IsTheFirstOfSeveralEquallyNear) {
    expectFound({whole(60, 30), whole(61, 30)}, inMillimetres(60.5, 30), {0, false, false});
    expectFound({whole(60, 30), whole(60, 30)}, inMillimetres(60, 30), {0, false, true});
}

TEST(NearestSize, IsRatherUprightThanTurned) {
    // 50.4 x 50 is 0.4 mm off the first one turned and 0.6 mm off the second one upright.
    expectFound({whole(50, 50.8), whole(51, 50)}, inMillimetres(50.4, 50), {1, false, false});
    expectFound({whole(50, 50)}, inMillimetres(50, 50), {0, false, true});
}

TEST(NearestSize, IsRatherTheVerySizeTurnedThanANearOneUpright) {
    expectFound({whole(50, 50.5), whole(51, 50)}, inMillimetres(50.5, 50), {0, true, true});
}

// A client that only has the page of a description asks for that.
TEST(NearestSize, MayBeThatOfThePage) {
    const OfferedSize offered{inMillimetres(12, 30), inMillimetres(8.81, 29.98)};
    expectFound({whole(60, 30), offered}, inMillimetres(8.81, 29.98), {1, false, true});
    expectFound({whole(60, 30), offered}, inMillimetres(12, 30), {1, false, true});
    expectFound({whole(60, 30), offered}, inMillimetres(30, 9.5), {1, true, false});
    EXPECT_FALSE(nearestSize(std::vector{whole(60, 30), offered}, inMillimetres(10.4, 30)));
}

TEST(NearestSize, IsNoneOfNone) {
    EXPECT_FALSE(nearestSize({}, inMillimetres(60, 30)));
}

TEST(OfferedSize, HasItsLabelFromItsNameAndItsPageFromItsPoints) {
    const OfferedSize size = offeredSize("100x150mm", {283.8125, 425.3125});
    EXPECT_EQ(sizeText(size.label), "100 x 150 mm");
    EXPECT_EQ(sizeText(size.page), "100.12 x 150.04 mm");
}

TEST(OfferedSize, HasItsLabelFromItsPointsWhereTheNameTellsNothing) {
    const OfferedSize size = offeredSize("Tattoo_A5", {595.25, 419.5625});
    EXPECT_EQ(sizeText(size.label), "209.99 x 148.01 mm");
    EXPECT_EQ(sizeText(size.page), "209.99 x 148.01 mm");
}

TEST(AreAlike, WhatIsWithinFivePointsInBothDirections) {
    EXPECT_TRUE(areAlike({100, 200}, {105, 195}));
    EXPECT_TRUE(areAlike({100, 200}, {100, 200}));
    EXPECT_FALSE(areAlike({100, 200}, {105.1, 200}));
    EXPECT_FALSE(areAlike({100, 200}, {100, 194.9}));
}

TEST(AreAlike, WhatIsWithinFivePointsTurned) {
    EXPECT_TRUE(areAlike({100, 200}, {203, 97}));
    EXPECT_FALSE(areAlike({100, 200}, {206, 100}));
}

}  // namespace
}  // namespace sizes
