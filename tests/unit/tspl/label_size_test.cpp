// The resolution and the edges that a SIZE and a picture tell.
#include "tspl/label_size.h"

#include <gtest/gtest.h>

namespace tspl {
namespace {

constexpr Length inches(double value, double precision = 0) {
    return {value, Unit::Inch, precision};
}

constexpr Length millimetres(double value, double precision) {
    return {value, Unit::Millimetre, precision};
}

TEST(NearestDpi, IsTheResolutionAtWhichTheDotsFillTheWidth) {
    EXPECT_EQ(nearestDpi(inches(4), 812), 203);
    EXPECT_EQ(nearestDpi(inches(4), 1200), 300);
    EXPECT_EQ(nearestDpi(inches(4), 2400), 600);
    EXPECT_EQ(nearestDpi(millimetres(101.6, 0.05), 1200), 300);
}

// Halfway lie 251.5 and 450.
TEST(NearestDpi, IsTheNearestOfThree) {
    EXPECT_EQ(nearestDpi(inches(2), 502), 203);
    EXPECT_EQ(nearestDpi(inches(2), 504), 300);
    EXPECT_EQ(nearestDpi(inches(2), 898), 300);
    EXPECT_EQ(nearestDpi(inches(2), 902), 600);
}

TEST(NearestDpi, IsTheLowestOrTheHighestBeyondThem) {
    EXPECT_EQ(nearestDpi(inches(4), 1), 203);
    EXPECT_EQ(nearestDpi(inches(4), 100000), 600);
    EXPECT_EQ(nearestDpi(inches(1e-3), std::int64_t{1} << 40), 600);
    EXPECT_EQ(nearestDpi(inches(1e300), 800), 203);
}

TEST(NearestDpi, IsNothingForAWidthThatTellsNone) {
    EXPECT_EQ(nearestDpi({812, Unit::Dot, 0}, 812), std::nullopt);
    EXPECT_EQ(nearestDpi(inches(0), 812), std::nullopt);
    EXPECT_EQ(nearestDpi(inches(-4), 812), std::nullopt);
}

TEST(WholeDots, RoundsToTheNearestDot) {
    EXPECT_EQ(wholeDots(inches(4), 203, 0), 812);
    EXPECT_EQ(wholeDots(inches(0.5), 203, 0), 102);
    EXPECT_EQ(wholeDots(millimetres(101.6, 0.05), 203, 0), 812);
    EXPECT_EQ(wholeDots({7, Unit::Dot, 0}, 203, 0), 7);
    EXPECT_EQ(wholeDots(inches(0), 203, 0), 0);
}

// 101.1 mm are 808.003 dots at 203 dpi, half of the last decimal is 0.400 dots.
TEST(WholeDots, EndsAtAPictureThatTheLastDecimalCannotTellFromTheEdge) {
    const Length width = millimetres(101.1, 0.05);
    EXPECT_EQ(wholeDots(width, 203, 808), 808);
    EXPECT_EQ(wholeDots(width, 203, 807), 808);
    EXPECT_EQ(wholeDots(width, 203, 810), 808);
}

// 4.2 mm are 99.213 dots at 600 dpi, half of the last decimal 1.181 dots.
TEST(WholeDots, EndsUpToTheLastDecimalFromTheLength) {
    const Length width = millimetres(4.2, 0.05);
    EXPECT_EQ(wholeDots(width, 600, 98), 99);
    EXPECT_EQ(wholeDots(width, 600, 99), 99);
    EXPECT_EQ(wholeDots(width, 600, 100), 100);
    EXPECT_EQ(wholeDots(width, 600, 101), 99);
}

// 0.2 inches are 40.6 dots at 203 dpi, half of the last decimal 10.15 dots.
TEST(WholeDots, EndsFarFromARoughLength) {
    EXPECT_EQ(wholeDots(inches(0.2, 0.05), 203, 30), 41);
    EXPECT_EQ(wholeDots(inches(0.2, 0.05), 203, 31), 31);
    EXPECT_EQ(wholeDots(inches(0.2, 0.05), 203, 50), 50);
    EXPECT_EQ(wholeDots(inches(0.2, 0.05), 203, 51), 41);
}

// What is called 203 dpi is 8 dots to the millimetre on some printers.
TEST(WholeDots, EndsAtAPictureOf8DotsToEachOfAWholeNumberOfMillimetresAt203Dpi) {
    EXPECT_EQ(wholeDots(millimetres(100, 0), 203, 800), 800);
    EXPECT_EQ(wholeDots(millimetres(150, 0), 203, 1200), 1200);
    EXPECT_EQ(wholeDots(millimetres(150, 0), 203, 1201), 1199);
    // Written as 100.0 mm.
    EXPECT_EQ(wholeDots(millimetres(100, 0.05), 203, 800), 800);
    EXPECT_EQ(wholeDots(millimetres(100, 0.05), 203, 0), 800);
    EXPECT_EQ(wholeDots(millimetres(100, 0.05), 203, 799), 799);
    EXPECT_EQ(wholeDots(millimetres(100, 0), 300, 800), 1181);
    EXPECT_EQ(wholeDots(inches(100), 203, 800), 20300);
    EXPECT_EQ(wholeDots(millimetres(101.1, 0.05), 203, 809), 808);
    EXPECT_EQ(wholeDots(millimetres(152.3, 0.05), 203, 1218), 1217);
}

TEST(WholeDots, Are8ToEachOfAWholeNumberOfMillimetresAt203DpiWhereNoPictureTellsTheEdge) {
    EXPECT_EQ(wholeDots(millimetres(100, 0), 203, 0), 800);
    EXPECT_EQ(wholeDots(millimetres(100, 0), 203, 791), 800);
    EXPECT_EQ(wholeDots(millimetres(100, 0), 203, 792), 799);
    EXPECT_EQ(wholeDots(millimetres(100, 0), 203, 806), 799);
    EXPECT_EQ(wholeDots(millimetres(100, 0), 203, 807), 800);
    EXPECT_EQ(wholeDots(millimetres(100, 0), 300, 0), 1181);
    EXPECT_EQ(wholeDots(millimetres(97.5, 0.05), 203, 0), 780);
    EXPECT_EQ(wholeDots(millimetres(97.5, 0.05), 203, 784), 779);
    EXPECT_EQ(wholeDots(millimetres(99.9, 0.05), 203, 0), 798);
}

TEST(WholeDots, OfTenthsOfAnInchAreExact) {
    EXPECT_EQ(wholeDots(parseLength("2.5").value(), 203, 500), 508);
    EXPECT_EQ(wholeDots(parseLength("2.5").value(), 203, 0), 508);
}

TEST(WholeDots, OfAnExactLengthGivesNoWay) {
    EXPECT_EQ(wholeDots(inches(4), 203, 811), 812);
    EXPECT_EQ(wholeDots(inches(4), 203, 813), 812);
    EXPECT_EQ(wholeDots({7, Unit::Dot, 0}, 203, 8), 7);
}

}  // namespace
}  // namespace tspl
