// The sizes of labels and their texts.
#include "sizes/nominal_size.h"

#include <gtest/gtest.h>

#include <limits>

namespace sizes {
namespace {

TEST(NominalSize, HasItsTextInTheUnitItIsNamedIn) {
    EXPECT_EQ(sizeText(inMillimetres(60, 30)), "60 x 30 mm");
    EXPECT_EQ(sizeText(inMillimetres(101.6, 152.4)), "101.6 x 152.4 mm");
    EXPECT_EQ(sizeText(inInches(2.25, 1.25)), "2.25 x 1.25 in");
    EXPECT_EQ(sizeText(inInches(4, 6)), "4 x 6 in");
    EXPECT_EQ(sizeText(inInches(1.0 / 3, 100)), "0.3333 x 100 in");
}

TEST(NominalSize, HasANameThatPeopleCanType) {
    EXPECT_EQ(sizeName(inMillimetres(60, 30)), "60x30mm");
    EXPECT_EQ(sizeName(inMillimetres(60.5, 30.25)), "60.5x30.25mm");
    EXPECT_EQ(sizeName(inInches(2.25, 1.25)), "2.25x1.25in");
    EXPECT_EQ(sizeName(inInches(4, 6)), "4x6in");
}

TEST(NominalSize, IsExactInMillimetresWhateverTheUnit) {
    const NominalSize size = inInches(4, 6);
    EXPECT_DOUBLE_EQ(size.width, 101.6);
    EXPECT_DOUBLE_EQ(size.height, 152.4);
}

TEST(NominalSize, InPointsIsNamedInInchesWhenItHasWholeEighths) {
    EXPECT_EQ(sizeText(inPoints(288, 432)), "4 x 6 in");
    EXPECT_EQ(sizeText(inPoints(9, 99)), "0.125 x 1.375 in");
    EXPECT_EQ(sizeText(inPoints(288, 433)), "101.6 x 152.75 mm");
}

TEST(NominalSize, InPointsIsRoundedToHundredthsOfAMillimetre) {
    const NominalSize size = inPoints(283.4645, 425.1968);
    EXPECT_DOUBLE_EQ(size.width, 100);
    EXPECT_DOUBLE_EQ(size.height, 150);
}

TEST(NominalSize, TurnedHasWidthAndHeightSwapped) {
    const NominalSize size = turned(inInches(1, 2));
    EXPECT_DOUBLE_EQ(size.width, 50.8);
    EXPECT_DOUBLE_EQ(size.height, 25.4);
    EXPECT_EQ(sizeText(size), "2 x 1 in");
}

TEST(NominalSize, IsSquareToTheHundredthOfAMillimetre) {
    EXPECT_TRUE(isSquare(inMillimetres(100, 100)));
    EXPECT_TRUE(isSquare(inMillimetres(101.6, 101.601)));
    EXPECT_FALSE(isSquare(inMillimetres(100, 100.02)));
    EXPECT_FALSE(isSquare(inMillimetres(100.02, 100)));
}

TEST(NominalSize, IsThatOfALabelFromAHundredthOfAMillimetreToTenMetres) {
    EXPECT_TRUE(isLabelSize(inMillimetres(0.01, 10000)));
    EXPECT_TRUE(isLabelSize(inMillimetres(10000, 0.01)));
    EXPECT_FALSE(isLabelSize(inMillimetres(0.009, 10)));
    EXPECT_FALSE(isLabelSize(inMillimetres(10, 0.009)));
    EXPECT_FALSE(isLabelSize(inMillimetres(10001, 10)));
    EXPECT_FALSE(isLabelSize(inMillimetres(10, 10001)));
    EXPECT_FALSE(isLabelSize(inMillimetres(-10, -10)));
    const double none = std::numeric_limits<double>::quiet_NaN();
    EXPECT_FALSE(isLabelSize(inMillimetres(none, 10)));
    EXPECT_FALSE(isLabelSize(inMillimetres(10, none)));
}

TEST(LengthText, HasNoMoreDecimalsThanNeeded) {
    EXPECT_EQ(lengthText(286.625), "286.625");
    EXPECT_EQ(lengthText(287), "287");
    EXPECT_EQ(lengthText(280), "280");
    EXPECT_EQ(lengthText(0), "0");
    EXPECT_EQ(lengthText(283.743842), "283.7438");
    EXPECT_EQ(lengthText(283.743842, 5), "283.74384");
    EXPECT_EQ(lengthText(0.99999), "1");
    EXPECT_EQ(lengthText(-0.8867), "-0.8867");
    EXPECT_EQ(lengthText(1e300).size(), 301U);
    EXPECT_EQ(lengthText(300, 0), "300");
}

// A PPD file with "-0" in it would do no harm, but it looks odd.
TEST(LengthText, HasNoMinusBeforeNothing) {
    EXPECT_EQ(lengthText(-0.00001), "0");
}

}  // namespace
}  // namespace sizes
