// Pages of whole dots.
#include "sizes/dot_grid.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "sizes/findable_points.h"
#include "sizes/printer_model.h"

namespace sizes {
namespace {

// By hand: 100.15 mm are 800.4 dots at 203 dpi, 60.15 are 480.7, 57.3 are 457.9, 50.95 are 407.2.
TEST(DotsAcross, AreWholeBytesThatFitOnTheLabel) {
    EXPECT_EQ(dotsAcross(100, 203), 800);
    EXPECT_EQ(dotsAcross(60, 203), 480);
    EXPECT_EQ(dotsAcross(57.15, 203), 456);
    EXPECT_EQ(dotsAcross(50.8, 203), 400);
    EXPECT_EQ(dotsAcross(101.6, 203), 808);
}

// 800 dots at 203 dpi are 100.0985 mm, and 104 at 300 dpi are 8.8053 mm.
TEST(DotsAcross, ReachOverTheEdgeByTheToleranceAtMost) {
    EXPECT_EQ(dotsAcross(99.949, 203), 800);
    EXPECT_EQ(dotsAcross(99.948, 203), 792);
    EXPECT_EQ(dotsAcross(8.6554, 300), 104);
    EXPECT_EQ(dotsAcross(8.6552, 300), 96);
}

TEST(DotsAcross, AreNeverMoreThanAByteFewerThanFit) {
    for (int dpi : {203, 300}) {
        for (int hundredths = 100; hundredths < 22000; hundredths += 37) {
            const double width = hundredths / 100.0;
            const int dots = dotsAcross(width, dpi);
            const double printed = dots * 25.4 / dpi;
            EXPECT_EQ(dots % 8, 0);
            EXPECT_LE(printed, width + 0.150001) << width;
            EXPECT_GT(printed + 8 * 25.4 / dpi, width + 0.149999) << width;
        }
    }
}

TEST(DotsDown, AreTheNearestNumber) {
    EXPECT_EQ(dotsDown(100, 203), 799);  // 799.21
    EXPECT_EQ(dotsDown(50, 300), 591);   // 590.55
    EXPECT_EQ(dotsDown(152.4, 203), 1218);
    EXPECT_EQ(dotsDown(25.4, 300), 300);
}

TEST(DotsDown, AreTheLargerNumberInTheMiddleInEveryUnit) {
    // Half an inch has 101.5 dots.
    for (int inches = 0; inches < 100; ++inches) {
        EXPECT_EQ(dotsDown(inInches(1, inches + 0.5).height, 203), 203 * inches + 102) << inches;
    }
}

TEST(Dots, AreNoneForWhatIsNoLength) {
    const double none = std::numeric_limits<double>::quiet_NaN();
    for (double length : {0.0, -10.0, none}) {
        EXPECT_EQ(dotsAcross(length, 300), 0);
        EXPECT_EQ(dotsDown(length, 300), 0);
    }
}

TEST(Dots, AreThoseOfTheLongestLabelForWhatIsLonger) {
    const double endless = std::numeric_limits<double>::infinity();
    EXPECT_EQ(dotsDown(endless, 300), dotsDown(10000, 300));
    EXPECT_EQ(dotsAcross(1e300, 300), dotsAcross(10000, 300));
}

TEST(DotsOf, AreThoseOfBothLengths) {
    EXPECT_EQ(dotsOf(inMillimetres(60, 30), 203), (DotSize{480, 240}));
    EXPECT_EQ(dotsOf(inInches(4, 6), 300), (DotSize{1200, 1800}));
    EXPECT_EQ(dotsOf(inMillimetres(100, 50), 203), (DotSize{800, 400}));
}

// 100 mm at 203 dpi: 800 dots fit across with the tolerance, and 799 are nearest to the height.
TEST(DotsOf, AreNotFewerDownThanAcrossWhereTheLabelIsNotWiderThanTall) {
    EXPECT_EQ(dotsOf(inMillimetres(100, 100), 203), (DotSize{800, 800}));
    EXPECT_EQ(dotsOf(inMillimetres(50, 50), 300), (DotSize{592, 592}));
    EXPECT_EQ(dotsOf(inMillimetres(100, 100.01), 203), (DotSize{800, 800}));
    EXPECT_EQ(dotsOf(inMillimetres(100.9, 100), 203), (DotSize{800, 799}));
    EXPECT_EQ(dotsOf(inMillimetres(60, 60), 203), (DotSize{480, 480}));
}

TEST(DotsOf, StayWithinTheToleranceForEverySquareLabel) {
    for (int dpi : {203, 300}) {
        for (int hundredths = 500; hundredths < 21800; hundredths += 5) {
            const double side = hundredths / 100.0;
            const DotSize dots = dotsOf(inMillimetres(side, side), dpi);
            EXPECT_LE(dots.columns, dots.rows) << side;
            EXPECT_LE(dots.rows * 25.4 / dpi, side + 0.151) << side;
        }
    }
}

TEST(PrintedSize, IsThatOfTheDots) {
    const NominalSize size = printedSize({800, 1200}, 300);
    EXPECT_DOUBLE_EQ(size.width, 800 * 25.4 / 300);
    EXPECT_DOUBLE_EQ(size.height, 101.6);
    EXPECT_EQ(size.unit, LengthUnit::Millimetre);
}

TEST(ExactPage, HasThePointsOfItsDots) {
    const auto page = exactPage(inMillimetres(100, 150), 300);
    ASSERT_TRUE(page);
    EXPECT_EQ(page->dots, (DotSize{1176, 1772}));
    EXPECT_DOUBLE_EQ(page->points.width, 282.24);
    EXPECT_DOUBLE_EQ(page->points.height, 425.28);
}

TEST(ExactPage, LosesNoMoreThanSevenDotsOfAnyLabel) {
    for (int dpi : {203, 300}) {
        for (int tenths = 20; tenths < 500; ++tenths) {
            const double width = tenths / 10.0;
            const auto page = exactPage(inMillimetres(width, 12), dpi);
            ASSERT_TRUE(page) << width;
            EXPECT_GT(page->dots.columns, width * dpi / 25.4 - 8) << width;
            EXPECT_EQ(page->dots.rows, dotsDown(12, dpi));
        }
    }
}

TEST(ExactPage, NeedsEightDotsEitherWay) {
    // 8 dots at 203 dpi are 1.001 mm.
    EXPECT_TRUE(exactPage(inMillimetres(1, 1), 203));
    EXPECT_FALSE(exactPage(inMillimetres(0.8, 10), 203));
    EXPECT_FALSE(exactPage(inMillimetres(10, 0.9), 203));
    EXPECT_FALSE(exactPage(inMillimetres(0, 0), 203));
}

// Whole points, cut off, are found within 1 %; the rest must mean the same number of dots.
void expectFindable(double points, int dots, int dpi) {
    EXPECT_LT(points - static_cast<int>(points), 0.01 * points) << dots;
    EXPECT_LT(std::abs(points * dpi / 72 - dots), 0.451) << dots;
    EXPECT_EQ(points * 16, static_cast<int>(points * 16)) << dots;
}

TEST(FindablePoints, MeanTheirDotsToBothWaysOfReadingThem) {
    for (int dpi : {203, 300}) {
        for (int dots = 8; dots < 3000; ++dots) {
            if (const auto points = findablePoints(dots, dpi)) {
                expectFindable(*points, dots, dpi);
            }
        }
    }
}

// From 100 points up 1 % is a whole one: nothing that is cut off matters any more.
TEST(FindablePoints, ExistForEveryNumberFromAHundredPointsUp) {
    for (int dpi : {203, 300}) {
        for (int dots = 101 * dpi / 72; dots < 30000; ++dots) {
            EXPECT_TRUE(findablePoints(dots, dpi)) << dots;
        }
    }
}

// 136 dots at 300 dpi are 32.64 points, of which poppler's converter makes 32; 35 dots are 8.4.
TEST(FindablePoints, DoNotExistWhereCuttingOffLosesTheSize) {
    EXPECT_FALSE(findablePoints(136, 300));
    EXPECT_FALSE(findablePoints(35, 300));
    EXPECT_EQ(findablePoints(100, 300), 24.0625);
}

// 1150 dots at 203 dpi are 407.8818 points; a program that cuts off needs them in full.
TEST(FindablePoints, AreALittleMoreThanTheDotsWhereThatIsFound) {
    EXPECT_EQ(findablePoints(1150, 203), 407.9375);
    EXPECT_EQ(findablePoints(1218, 203), 432.0625);
}

TEST(OfferedPage, IsFoundByBothConverters) {
    const auto page = offeredPage(inMillimetres(60, 30), 203);
    ASSERT_TRUE(page);
    EXPECT_EQ(page->dots, (DotSize{480, 240}));
    expectFindable(page->points.width, 480, 203);
    expectFindable(page->points.height, 240, 203);
}

// 12 mm are 141 dots at 300 dpi: 136 fit, and of 136, 128, 120, 112 and 104 dots the last is the
// first whose points (24.96, or 25) are near enough to whole ones.
TEST(OfferedPage, IsSmallerWhereNoPointsAreFound) {
    const auto page = offeredPage(inMillimetres(12, 30), 300);
    ASSERT_TRUE(page);
    EXPECT_EQ(page->dots.columns, 104);
    EXPECT_EQ(page->points.width, 25);
}

TEST(OfferedPage, IsTakenForLandscapeOnlyWhereTheLabelIs) {
    for (int dpi : {203, 300}) {
        for (int hundredths = 1000; hundredths < 21800; hundredths += 5) {
            const double side = hundredths / 100.0;
            const auto page = offeredPage(inMillimetres(side, side), dpi);
            ASSERT_TRUE(page) << side;
            EXPECT_LE(page->points.width, page->points.height) << side;
        }
    }
}

TEST(OfferedPage, NeedsEightDotsEitherWay) {
    EXPECT_FALSE(offeredPage(inMillimetres(0.8, 10), 203));
    EXPECT_FALSE(offeredPage(inMillimetres(10, 0.8), 203));
    EXPECT_FALSE(offeredPage(inMillimetres(0, 0), 203));
}

}  // namespace
}  // namespace sizes
