// From numbers of one kind to those of another.
#include "lanes/conversion.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>

namespace {

using Integers = lanes::Lanes<std::int32_t, 16>;
using Floats = lanes::Lanes<float, 16>;

// 240 to 255.
std::array<std::uint8_t, 16> highBytes() {
    std::array<std::uint8_t, 16> bytes{};
    std::iota(bytes.begin(), bytes.end(), std::uint8_t{240});
    return bytes;
}

TEST(Conversion, WidensBytesInTheirOrder) {
    const auto bytes = highBytes();
    std::array<float, 16> floats{};
    lanes::store(lanes::asFloats<16>(lanes::loadBytes(bytes.data())), floats.data());
    EXPECT_TRUE(std::equal(floats.begin(), floats.end(), bytes.begin()));
    std::array<std::int16_t, 16> words{};
    lanes::store(lanes::asWords<16>(lanes::loadBytes(bytes.data())), words.data());
    EXPECT_TRUE(std::equal(words.begin(), words.end(), bytes.begin()));
}

TEST(Conversion, LimitsNumbersToBytes) {
    const std::array<std::int32_t, 16> numbers = {
        0, 1, 254, 255, 256, -1, 32767, 32768, 65535, -32769, 100, -255, 7, 8, 9, 2147483647};
    std::array<std::uint8_t, 16> bytes{};
    lanes::storeLimited(lanes::load<Integers>(numbers.data()), bytes.data());
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        EXPECT_EQ(bytes[i], std::clamp(numbers[i], 0, 255)) << numbers[i];
    }
}

TEST(Conversion, LimitsNumbersOfTwoBytesToBytes) {
    using Words = lanes::Lanes<std::int16_t, 16>;
    const std::array<std::int16_t, 16> numbers = {0,   1,    254, 255, 256, -1, 32767, -32768,
                                                  128, -128, 100, 511, 7,   8,  -255,  1000};
    std::array<std::uint8_t, 16> bytes{};
    lanes::storeLimited(lanes::load<Words>(numbers.data()), bytes.data());
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        EXPECT_EQ(bytes[i], std::clamp<int>(numbers[i], 0, 255)) << numbers[i];
    }
}

TEST(Conversion, CutsFloatsOffTowardsZero) {
    const std::array<float, 16> floats = {0.0F,   0.5F,  0.99F, 1.0F,  254.99F, 255.5F,
                                          1e9F,   -0.5F, -1.5F, -2.0F, 100.1F,  128.0F,
                                          3.999F, 7.0F,  8.5F,  -9.9F};
    std::array<std::int32_t, 16> integers{};
    lanes::store(lanes::integersOf(lanes::load<Floats>(floats.data())), integers.data());
    for (std::size_t i = 0; i < integers.size(); ++i) {
        EXPECT_EQ(integers[i], static_cast<std::int32_t>(floats[i])) << floats[i];
    }
}

TEST(Conversion, RoundsFloatsToTheNextWholeNumberAndAHalfToTheEvenOne) {
    const std::array<float, 16> floats = {0.0F,   0.25F,  0.5F,    0.75F,   1.0F,   1.5F,
                                          2.5F,   127.5F, 127.51F, 128.49F, 128.5F, 254.4F,
                                          254.6F, 255.0F, 255.1F,  -0.0F};
    const std::array<int, 16> expected = {0,   0,   0,   1,   1,   2,   2,   128,
                                          128, 128, 128, 254, 255, 255, 255, 0};
    const lanes::NearestWholes<16> wholes(lanes::load<Floats>(floats.data()));
    std::array<float, 16> wholeFloats{};
    std::array<std::int32_t, 16> integers{};
    lanes::store(wholes.floats(), wholeFloats.data());
    lanes::store(wholes.integers(), integers.data());
    for (std::size_t i = 0; i < floats.size(); ++i) {
        EXPECT_EQ(integers[i], expected[i]) << floats[i];
        EXPECT_EQ(wholeFloats[i], static_cast<float>(expected[i])) << floats[i];
    }
}

TEST(Conversion, TakesSignsOff) {
    const std::array<float, 16> floats = {0.0F, -0.0F, 1.5F, -1.5F, -255.0F, 1e-9F, -1e-9F, -0.5F,
                                          0.5F, 3.0F,  4.0F, -5.0F, 6.0F,    -7.0F, 8.0F,   -9.0F};
    std::array<float, 16> magnitudes{};
    lanes::store(lanes::magnitudes(lanes::load<Floats>(floats.data())), magnitudes.data());
    for (std::size_t i = 0; i < floats.size(); ++i) {
        EXPECT_EQ(magnitudes[i], std::fabs(floats[i])) << floats[i];
        EXPECT_FALSE(std::signbit(magnitudes[i])) << floats[i];
    }
}

TEST(Conversion, RoundsDoublesToFloats) {
    std::array<float, 16> floats{};
    std::iota(floats.begin(), floats.end(), 16777200.0F);
    const auto doubles = lanes::loadDoubles<16>(floats.data());
    const auto sums = doubles + lanes::all<lanes::Lanes<double, 16>>(0.75);
    std::array<float, 16> rounded{};
    lanes::store(lanes::asFloats(sums), rounded.data());
    for (std::size_t i = 0; i < rounded.size(); ++i) {
        EXPECT_EQ(rounded[i], static_cast<float>(static_cast<double>(floats[i]) + 0.75)) << i;
    }
}

}  // namespace
