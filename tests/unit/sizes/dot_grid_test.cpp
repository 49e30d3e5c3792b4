// Pages of whole dots.
#include "sizes/dot_grid.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

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

TEST(LabelPoints, AreTheLabelItself) {
    EXPECT_NEAR(labelPoints(inInches(4, 6)).width, 288, 1e-9);
    EXPECT_NEAR(labelPoints(inInches(4, 6)).height, 432, 1e-9);
    EXPECT_NEAR(labelPoints(inMillimetres(25.4, 50.8)).height, 144, 1e-9);
}

}  // namespace
}  // namespace sizes
