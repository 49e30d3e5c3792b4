#include "enhance/numeric.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>

#include "tests/unit/enhance/numeric_values.h"

namespace {

using numeric_values::BitsOfCase;

constexpr float kNan = std::numeric_limits<float>::quiet_NaN();
constexpr float kInfinity = std::numeric_limits<float>::infinity();

std::uint32_t bitsOf(float value) {
    return std::bit_cast<std::uint32_t>(value);
}

template <typename Cases>
void expectValues(float (*function)(float), const Cases& cases) {
    for (const BitsOfCase& fixed : cases) {
        const auto argument = std::bit_cast<float>(fixed.argument);
        EXPECT_EQ(bitsOf(function(argument)), fixed.result) << "argument " << argument;
    }
}

TEST(MyAbs, TurnsNegativeNumbersAroundAndKeepsAllOthersAsTheyAre) {
    EXPECT_EQ(myabs(-2.5F), 2.5F);
    EXPECT_EQ(myabs(2.5F), 2.5F);
    EXPECT_EQ(myabs(-kInfinity), kInfinity);
    EXPECT_EQ(bitsOf(myabs(-0.0F)), bitsOf(-0.0F));
    EXPECT_EQ(bitsOf(myabs(-kNan)), bitsOf(-kNan));
}

TEST(MySqrt, GivesTheseBits) {
    expectValues(my_sqrt, numeric_values::kSquareRoots);
}

TEST(MySqrt, OfZeroIsZeroAndOfANegativeNumberMinusOne) {
    EXPECT_EQ(bitsOf(my_sqrt(0.0F)), bitsOf(0.0F));
    EXPECT_EQ(bitsOf(my_sqrt(-0.0F)), bitsOf(0.0F));
    EXPECT_EQ(my_sqrt(-4.0F), -1.0F);
    EXPECT_EQ(my_sqrt(-kInfinity), -1.0F);
}

TEST(MySqrt, GivesTheIterateBeforeTheOneThatIsClose) {
    // 2, then 2 again.
    EXPECT_EQ(my_sqrt(4.0F), 2.0F);
    // 0.125, 1.0625, 0.6488971, 0.5170866, 0.5002823, 0.5000001; the next would be 0.5.
    EXPECT_EQ(bitsOf(my_sqrt(0.25F)), bitsOf(0.5F) + 1);
}

TEST(MySqrt, EndsWhereNoIterateSettles) {
    EXPECT_TRUE(std::isnan(my_sqrt(kNan)));
    EXPECT_TRUE(std::isnan(my_sqrt(-kNan)));
    EXPECT_FALSE(my_sqrt(kInfinity) < 0.0F);
    EXPECT_FALSE(my_sqrt(std::numeric_limits<float>::denorm_min()) < 0.0F);
}

TEST(MyExp, GivesTheseBits) {
    expectValues(my_exp, numeric_values::kExponentials);
}

TEST(MyExp, OfZeroIsOne) {
    EXPECT_EQ(my_exp(0.0F), 1.0F);
    EXPECT_EQ(my_exp(-0.0F), 1.0F);
}

TEST(MyExp, OfANegativeNumberIsTheReciprocalRoundedFromDouble) {
    for (int i = 1; i < 3000; ++i) {
        const float x = static_cast<float>(i) * 0.03F;
        EXPECT_EQ(my_exp(-x), static_cast<float>(1.0 / static_cast<double>(my_exp(x)))) << x;
    }
}

TEST(MyExp, IncludesTheFirstTermBelowTheLimit) {
    // 1 + 2^-20: the first term is below 1e-6 and still counts.
    EXPECT_EQ(my_exp(std::ldexp(1.0F, -20)), 1.0F + std::ldexp(1.0F, -20));
    // 1 + 2^-10 + 2^-21: the second term is below 1e-6; the third would not show.
    EXPECT_EQ(my_exp(std::ldexp(1.0F, -10)), 1.0F + std::ldexp(1.0F, -10) + std::ldexp(1.0F, -21));
}

TEST(MyExp, StopsAfterTwentyTermsAndSoFallsShortOfTheTrueValue) {
    double sum = 1.0;
    double term = 1.0;
    for (int n = 1; n <= 20; ++n) {
        term = term * 25.0 / n;
        sum += term;
    }
    EXPECT_NEAR(static_cast<double>(my_exp(25.0F)) / sum, 1.0, 1e-6);
    EXPECT_LT(static_cast<double>(my_exp(25.0F)), 0.3 * std::exp(25.0));
}

TEST(MyExp, HandsOnWhatIsNoNumberOrNotFinite) {
    EXPECT_TRUE(std::isnan(my_exp(kNan)));
    EXPECT_EQ(my_exp(kInfinity), kInfinity);
    EXPECT_EQ(my_exp(-kInfinity), 0.0F);
}

TEST(MyLn, GivesTheseBits) {
    expectValues(my_ln, numeric_values::kLogarithms);
}

TEST(MyLn, OfEveryLevelOutOf255GivesTheseBits) {
    for (std::uint32_t level = 0; level < 256; ++level) {
        const float share = static_cast<float>(level) / 255.0F;
        EXPECT_EQ(bitsOf(my_ln(share)), numeric_values::kLogarithmsOfLevels[level]) << level;
    }
}

TEST(MyLn, OfOneIsZeroAndOfZeroAndBelowMinusOne) {
    EXPECT_EQ(my_ln(1.0F), 0.0F);
    EXPECT_EQ(my_ln(0.0F), -1.0F);
    EXPECT_EQ(my_ln(-0.0F), -1.0F);
    EXPECT_EQ(my_ln(-2.0F), -1.0F);
    EXPECT_EQ(my_ln(-kInfinity), -1.0F);
}

TEST(MyLn, EndsWhereNoIterateSettles) {
    EXPECT_TRUE(std::isnan(my_ln(kNan)));
    EXPECT_TRUE(std::isnan(my_ln(-kNan)));
    my_ln(kInfinity);
    my_ln(std::numeric_limits<float>::denorm_min());
    my_ln(std::numeric_limits<float>::min());
    my_ln(std::numeric_limits<float>::max());
}

TEST(MyLn, EndsWhereTheIteratesGoRoundInCircles) {
    for (const std::uint32_t bits : {0x4AEC0665U, 0x4AFF388FU, 0x4B289592U, 0x4E7A7CABU}) {
        const auto x = std::bit_cast<float>(bits);
        EXPECT_NEAR(static_cast<double>(my_ln(x)), std::log(static_cast<double>(x)), 1.0) << x;
    }
}

TEST(MyPow, OfZeroDependsOnTheSignOfTheExponent) {
    EXPECT_EQ(my_pow(0.0F, 0.0F), 1.0F);
    EXPECT_EQ(my_pow(-0.0F, -0.0F), 1.0F);
    EXPECT_EQ(bitsOf(my_pow(0.0F, 2.0F)), bitsOf(0.0F));
    EXPECT_EQ(my_pow(0.0F, -1.0F), -1.0F);
    EXPECT_EQ(my_pow(0.0F, kNan), -1.0F);
}

TEST(MyPow, OfANegativeNumberTakesWholeExponentsOnly) {
    EXPECT_EQ(my_pow(-2.0F, 0.5F), -1.0F);
    EXPECT_EQ(my_pow(-2.0F, -1.5F), -1.0F);
    EXPECT_EQ(my_pow(-2.0F, kNan), -1.0F);
    EXPECT_EQ(my_pow(-2.0F, kInfinity), -1.0F);
    EXPECT_EQ(my_pow(-2.0F, 3e9F), -1.0F);
}

TEST(MyPow, OfANegativeNumberToAWholeExponentIsThatOfMinusOneAsLogarithm) {
    EXPECT_EQ(my_pow(-2.0F, 2.0F), my_exp(-2.0F));
    EXPECT_EQ(my_pow(-7.0F, 2.0F), my_exp(-2.0F));
    EXPECT_EQ(my_pow(-2.0F, -3.0F), my_exp(3.0F));
}

TEST(MyPow, OfWhatIsNoNumberEnds) {
    EXPECT_TRUE(std::isnan(my_pow(kNan, 0.5F)));
    EXPECT_TRUE(std::isnan(my_pow(0.5F, kNan)));
}

TEST(MyRound, RoundsHalvesAwayFromZero) {
    EXPECT_EQ(my_round(2.5F), 3);
    EXPECT_EQ(my_round(-2.5F), -3);
    EXPECT_EQ(my_round(0.5F), 1);
    EXPECT_EQ(my_round(-0.5F), -1);
    EXPECT_EQ(my_round(2.25F), 2);
    EXPECT_EQ(my_round(-2.75F), -3);
    EXPECT_EQ(my_round(-0.4F), 0);
    EXPECT_EQ(my_round(-0.0F), 0);
}

TEST(MyRound, AddsTheHalfInSinglePrecision) {
    // The largest number below a half, and an odd number that fills the mantissa.
    EXPECT_EQ(my_round(0.49999997F), 1);
    EXPECT_EQ(my_round(-0.49999997F), -1);
    EXPECT_EQ(my_round(8388609.0F), 8388610);
}

TEST(MyClamp, LimitsToTheRange) {
    EXPECT_EQ(myClamp(300, 0, 255), 255);
    EXPECT_EQ(myClamp(-5, 0, 255), 0);
    EXPECT_EQ(myClamp(0, 0, 255), 0);
    EXPECT_EQ(myClamp(255, 0, 255), 255);
    EXPECT_EQ(myClamp(7, 0, 255), 7);
}

TEST(MyClamp, WithCrossedLimitsGivesTheLowerForWhatIsBelowItElseTheUpper) {
    EXPECT_EQ(myClamp(4, 5, 2), 5);
    EXPECT_EQ(myClamp(1, 5, 2), 5);
    EXPECT_EQ(myClamp(6, 5, 2), 2);
}

TEST(IsWithinBounds, HoldsFromZeroToTheLastRowAndColumn) {
    EXPECT_TRUE(isWithinBounds(0, 0, 4, 3));
    EXPECT_TRUE(isWithinBounds(3, 2, 4, 3));
    EXPECT_FALSE(isWithinBounds(4, 0, 4, 3));
    EXPECT_FALSE(isWithinBounds(0, 3, 4, 3));
    EXPECT_FALSE(isWithinBounds(-1, 0, 4, 3));
    EXPECT_FALSE(isWithinBounds(0, -1, 4, 3));
    EXPECT_FALSE(isWithinBounds(0, 0, 0, 0));
}

}  // namespace
