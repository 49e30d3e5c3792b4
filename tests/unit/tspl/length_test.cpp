// Lengths as commands write them.
#include "tspl/length.h"

#include <gtest/gtest.h>

#include <string>

namespace tspl {
namespace {

void expectLength(const char* text, double value, Unit unit, double precision) {
    const auto length = parseLength(text);
    ASSERT_TRUE(length) << text;
    EXPECT_DOUBLE_EQ(length->value, value) << text;
    EXPECT_EQ(length->unit, unit) << text;
    EXPECT_DOUBLE_EQ(length->precision, precision) << text;
}

TEST(ParseLength, TakesANumberAloneForInches) {
    expectLength("4", 4, Unit::Inch, 0);
    expectLength("4.25", 4.25, Unit::Inch, 0.005);
    expectLength("0", 0, Unit::Inch, 0);
}

TEST(ParseLength, TakesMillimetres) {
    expectLength("101.1 mm", 101.1, Unit::Millimetre, 0.05);
    expectLength("100mm", 100, Unit::Millimetre, 0);
    expectLength("100 \t MM", 100, Unit::Millimetre, 0);
    expectLength("100 Mm ", 100, Unit::Millimetre, 0);
}

TEST(ParseLength, TakesInches) {
    for (const char* text : {"4 in", "4IN", "4 inch", "4 Inches"}) {
        expectLength(text, 4, Unit::Inch, 0);
    }
    expectLength("4.00 inch", 4, Unit::Inch, 0.005);
}

TEST(ParseLength, TakesDots) {
    expectLength("812 dot", 812, Unit::Dot, 0);
    expectLength("812dots", 812, Unit::Dot, 0);
    expectLength("812 DOT", 812, Unit::Dot, 0);
}

TEST(ParseLength, TakesDotsAsTheyAreWhateverTheDecimals) {
    expectLength("812.5 dot", 812.5, Unit::Dot, 0);
}

TEST(ParseLength, KnowsHalfOfTheLastDecimalThatIsWritten) {
    expectLength("0.5 mm", 0.5, Unit::Millimetre, 0.05);
    expectLength("0.50 mm", 0.5, Unit::Millimetre, 0.005);
    expectLength("0.500 mm", 0.5, Unit::Millimetre, 0.0005);
    expectLength(".50", 0.5, Unit::Inch, 0.005);
    const std::string zeros(60000, '0');
    expectLength(("1." + zeros).c_str(), 1, Unit::Inch, 0);
}

TEST(ParseLength, TakesTenthsOfAnInchForExact) {
    expectLength("2.5", 2.5, Unit::Inch, 0);
    expectLength("4.0 inch", 4, Unit::Inch, 0);
    expectLength(".5", 0.5, Unit::Inch, 0);
}

// No decimal is written, so none was rounded.
TEST(ParseLength, TakesANumberThatEndsWithItsPointForAWholeOne) {
    expectLength("4.", 4, Unit::Inch, 0);
    expectLength("100. mm", 100, Unit::Millimetre, 0);
}

TEST(ParseLength, TakesNegativeLengths) {
    expectLength("-1.5 mm", -1.5, Unit::Millimetre, 0.05);
    expectLength("-3", -3, Unit::Inch, 0);
}

TEST(ParseLength, RefusesWhatIsNoNumber) {
    for (const char* text : {"", " ", "mm", "-", ".", "-.", "+4", "x", "\"4\"", "--4", " 4"}) {
        EXPECT_FALSE(parseLength(text)) << text;
    }
}

TEST(ParseLength, RefusesNumbersThatAreNotFinite) {
    for (const char* text : {"nan", "NAN", "nan(1)", "-nan", "inf", "-inf", "infinity", "INF mm"}) {
        EXPECT_FALSE(parseLength(text)) << text;
    }
    EXPECT_FALSE(parseLength(std::string(400, '9')));
    EXPECT_FALSE(parseLength(std::string(60000, '9') + " mm"));
}

TEST(ParseLength, RefusesOtherUnits) {
    for (const char* text : {"4 cm", "4 m", "4 mmm", "4\"", "4 4", "4,4", "4 dot.", "4e2", "0x10",
                             "4 in ch", "4.5.6", "1 nan"}) {
        EXPECT_FALSE(parseLength(text)) << text;
    }
    EXPECT_FALSE(parseLength(std::string_view("4\0", 2)));
}

TEST(LengthInDots, OfInchesIsTheResolutionPerInch) {
    EXPECT_DOUBLE_EQ(lengthInDots({4, Unit::Inch, 0}, 203), 812);
    EXPECT_DOUBLE_EQ(lengthInDots({0.5, Unit::Inch, 0}, 300), 150);
}

TEST(LengthInDots, OfMillimetresIsTheResolutionPer25Point4) {
    EXPECT_DOUBLE_EQ(lengthInDots({25.4, Unit::Millimetre, 0}, 203), 203);
    EXPECT_DOUBLE_EQ(lengthInDots({127, Unit::Millimetre, 0}, 600), 3000);
}

TEST(LengthInDots, OfDotsIsTheirNumberAtAnyResolution) {
    EXPECT_DOUBLE_EQ(lengthInDots({812, Unit::Dot, 0}, 203), 812);
    EXPECT_DOUBLE_EQ(lengthInDots({812, Unit::Dot, 0}, 600), 812);
}

TEST(PrecisionInDots, GrowsWithTheResolution) {
    EXPECT_DOUBLE_EQ(precisionInDots({4, Unit::Inch, 0.05}, 200), 10);
    EXPECT_DOUBLE_EQ(precisionInDots({4, Unit::Millimetre, 0.0254}, 600), 0.6);
    EXPECT_DOUBLE_EQ(precisionInDots({4, Unit::Millimetre, 0}, 600), 0);
    EXPECT_DOUBLE_EQ(precisionInDots({4, Unit::Dot, 0}, 600), 0);
}

}  // namespace
}  // namespace tspl
