// Operations on numbers side by side, against the same on one number at a time.
#include "lanes/lanes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "lanes/native.h"

namespace {

using Words = lanes::Lanes<std::int16_t, 16>;
using Integers = lanes::Lanes<std::int32_t, 16>;
using Floats = lanes::Lanes<float, 16>;

constexpr std::int16_t ends[] = {-32768, -32767, -256, -128, -127, -1,    0,     1,
                                 2,      127,    128,  255,  256,  32511, 32766, 32767};

template <typename Some>
std::array<typename Some::Number, 16> numbersOf(const Some& some) {
    std::array<typename Some::Number, 16> numbers{};
    lanes::store(some, numbers.data());
    return numbers;
}

// Every pair of the ends, one of each in every lane once.
template <typename Check>
void forEveryPair(Check check) {
    for (std::size_t shift = 0; shift < std::size(ends); ++shift) {
        std::array<std::int16_t, 16> a{};
        std::array<std::int16_t, 16> b{};
        for (std::size_t i = 0; i < a.size(); ++i) {
            a[i] = ends[i];
            b[i] = ends[(i + shift) % std::size(ends)];
        }
        check(a, b);
    }
}

TEST(Lanes, LimitSumsToWhatSixteenBitsHold) {
    forEveryPair([](const auto& a, const auto& b) {
        const auto sums =
            numbersOf(saturatedSum(lanes::load<Words>(a.data()), lanes::load<Words>(b.data())));
        for (std::size_t i = 0; i < sums.size(); ++i) {
            EXPECT_EQ(sums[i], std::clamp(a[i] + b[i], -32768, 32767)) << a[i] << " + " << b[i];
        }
    });
}

TEST(Lanes, RoundTheUpperHalfOfAProductDown) {
    for (const std::int16_t factor : ends) {
        const auto products = numbersOf(highProduct(lanes::load<Words>(ends), factor));
        for (std::size_t i = 0; i < products.size(); ++i) {
            EXPECT_EQ(products[i], std::floor(ends[i] * factor / 65536.0)) << ends[i] << factor;
        }
    }
}

TEST(Lanes, CompareAndKeepWhereAMaskIsSet) {
    forEveryPair([](const auto& a, const auto& b) {
        const Words first = lanes::load<Words>(a.data());
        const Words second = lanes::load<Words>(b.data());
        const auto kept = numbersOf(first & (first > second));
        const auto others = numbersOf(first & ~(first > second));
        const auto either = numbersOf(chosen(first > second, first, second + second));
        const auto most = numbersOf(larger(first, second));
        const auto least = numbersOf(smaller(first, second));
        for (std::size_t i = 0; i < kept.size(); ++i) {
            EXPECT_EQ(kept[i], a[i] > b[i] ? a[i] : 0);
            EXPECT_EQ(others[i], a[i] > b[i] ? 0 : a[i]);
            EXPECT_EQ(either[i], a[i] > b[i] ? a[i] : static_cast<std::int16_t>(2 * b[i]));
            EXPECT_EQ(most[i], std::max(a[i], b[i]));
            EXPECT_EQ(least[i], std::min(a[i], b[i]));
        }
    });
}

TEST(Lanes, MoveUpByOne) {
    const auto moved = numbersOf(movedUp(lanes::load<Words>(ends), std::int16_t{77}));
    EXPECT_EQ(moved[0], 77);
    for (std::size_t i = 1; i < moved.size(); ++i) {
        EXPECT_EQ(moved[i], ends[i - 1]) << i;
    }
    EXPECT_EQ(lastLane(lanes::load<Words>(ends)), 32767);
}

TEST(Lanes, KeepTheSignOfZero) {
    const auto zeros = lanes::all<Floats>(-0.0F);
    for (const float zero : numbersOf(zeros)) {
        EXPECT_TRUE(std::signbit(zero));
    }
    EXPECT_TRUE(std::signbit(numbersOf(movedUp(lanes::all<Floats>(1.0F), -0.0F))[0]));
    EXPECT_FALSE(std::signbit(numbersOf(movedUp(lanes::all<Floats>(1.0F), 0.0F))[0]));
}

TEST(Lanes, AreAnyWhereOneIs) {
    EXPECT_FALSE(isAny(lanes::all<Integers>(0)));
    for (std::size_t i = 0; i < 16; ++i) {
        std::array<std::int32_t, 16> mask{};
        mask[i] = -1;
        EXPECT_TRUE(isAny(lanes::load<Integers>(mask.data()))) << i;
    }
}

// What is near may be rounded once or twice, but not more.
TEST(Lanes, AddProductsNearly) {
    const Floats third = lanes::all<Floats>(1.0F / 3);
    for (const float sum : numbersOf(nearlyAdded(third, third, third))) {
        EXPECT_NEAR(sum, 4.0 / 9, 1e-7);
    }
}

}  // namespace
