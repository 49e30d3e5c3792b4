// Which halftoning every type stands for.
#include <algorithm>
#include <functional>

#include "tests/reference/dither.h"
#include "tests/reference/error_diffusion.h"
#include "tests/unit/driver/test_support.h"

namespace {

using reference::Bytes;
using reference::KernelCell;

constexpr int side = 24;

// A soft ramp with noise on it, which no two methods render alike.
Bytes ramp() {
    Bytes levels = noise(std::size_t{side} * side);
    for (std::size_t i = 0; i < levels.size(); ++i) {
        levels[i] = static_cast<std::uint8_t>(levels[i] / 8 + (i % side) * 9);
    }
    return levels;
}

Bytes finishedRamp(DitherType member, DitherType argument) {
    TestPrinter printer;
    printer.setHalftoneType(member);
    const Bytes page = ramp();
    Bytes out(page.size());
    errorOutputOf([&] { printer.PageProcess(argument, page.data(), side, side, side, out); });
    return bytesOf(*printer.pimage_);
}

Bytes pixelwise(const std::function<bool(std::uint8_t, std::size_t, std::size_t)>& isWhite) {
    Bytes values = ramp();
    for (std::size_t i = 0; i < values.size(); ++i) {
        values[i] = isWhite(values[i], i % side, i / side) ? 1 : 0;
    }
    return values;
}

Bytes diffused(std::int64_t divisor, const std::vector<KernelCell>& cells) {
    return reference::diffuseError({divisor, cells}, side, side, ramp(), 255);
}

Bytes threshold() {
    return pixelwise([](std::uint8_t level, auto, auto) { return level > 128; });
}

Bytes ordered() {
    return reference::dither(1, side, side, ramp());
}

Bytes bayer() {
    constexpr int thresholds[4][4] = {
        {0, 192, 48, 240}, {128, 64, 176, 112}, {32, 224, 16, 208}, {160, 96, 144, 80}};
    return pixelwise([&](std::uint8_t level, std::size_t x, std::size_t y) {
        return level > thresholds[y % 4][x % 4];
    });
}

Bytes floydSteinberg() {
    return diffused(16, {{1, 0, 7}, {-1, 1, 3}, {0, 1, 5}, {1, 1, 1}});
}

Bytes burkes() {
    return diffused(
        32, {{1, 0, 8}, {2, 0, 4}, {-2, 1, 2}, {-1, 1, 4}, {0, 1, 8}, {1, 1, 4}, {2, 1, 2}});
}

Bytes stucki() {
    return diffused(42, {{1, 0, 8},
                         {2, 0, 4},
                         {-2, 1, 2},
                         {-1, 1, 4},
                         {0, 1, 8},
                         {1, 1, 4},
                         {2, 1, 2},
                         {-2, 2, 1},
                         {-1, 2, 2},
                         {0, 2, 4},
                         {1, 2, 2},
                         {2, 2, 1}});
}

Bytes jarvisJudiceNinke() {
    return diffused(48, {{1, 0, 7},
                         {2, 0, 5},
                         {-2, 1, 3},
                         {-1, 1, 5},
                         {0, 1, 7},
                         {1, 1, 5},
                         {2, 1, 3},
                         {-2, 2, 1},
                         {-1, 2, 3},
                         {0, 2, 5},
                         {1, 2, 3},
                         {2, 2, 1}});
}

Bytes sierra() {
    return diffused(32, {{1, 0, 5},
                         {2, 0, 3},
                         {-2, 1, 2},
                         {-1, 1, 4},
                         {0, 1, 5},
                         {1, 1, 4},
                         {2, 1, 2},
                         {-1, 2, 2},
                         {0, 2, 3},
                         {1, 2, 2}});
}

Bytes stevensonArce() {
    return diffused(200, {{2, 0, 32},
                          {-3, 1, 12},
                          {-1, 1, 26},
                          {1, 1, 30},
                          {3, 1, 16},
                          {-2, 2, 12},
                          {0, 2, 26},
                          {2, 2, 12},
                          {-3, 3, 5},
                          {-1, 3, 12},
                          {1, 3, 12},
                          {3, 3, 5}});
}

struct Halftoning {
    int type;
    Bytes (*expected)();
    const char* name;
};

class HalftoneType : public testing::TestWithParam<Halftoning> {};

TEST_P(HalftoneType, SelectsTheMethodOfTheNextName) {
    const auto type = static_cast<DitherType>(GetParam().type);
    EXPECT_EQ(finishedRamp(type, type), GetParam().expected());
}

INSTANTIATE_TEST_SUITE_P(
    AllTypes, HalftoneType,
    testing::Values(Halftoning{0, threshold, "NoneIsAThreshold"},
                    Halftoning{1, ordered, "FloydSteinbergIsOrdered"},
                    Halftoning{2, burkes, "OrderedIsBurkes"},
                    Halftoning{3, stucki, "BurkesIsStucki"},
                    Halftoning{4, jarvisJudiceNinke, "StuckiIsJarvisJudiceNinke"},
                    Halftoning{5, sierra, "JarvisJudiceNinkeIsSierra"},
                    Halftoning{6, stevensonArce, "SierraIsStevensonArce"},
                    Halftoning{7, bayer, "StevensonArceIsBayer"},
                    Halftoning{10, floydSteinberg, "TenIsFloydSteinberg"},
                    Halftoning{1000, floydSteinberg, "LargeNumbersAreFloydSteinberg"},
                    Halftoning{-1, floydSteinberg, "NegativeNumbersAreFloydSteinberg"}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(HalftoneTypes, AllRenderTheTestPageDifferently) {
    const std::set<Bytes> pages = {threshold(),         ordered(), burkes(),        stucki(),
                                   jarvisJudiceNinke(), sierra(),  stevensonArce(), bayer(),
                                   floydSteinberg()};
    EXPECT_EQ(pages.size(), 9U);
}

TEST(HalftoneTypes, AreTakenFromTheArgumentForTheMethod) {
    EXPECT_EQ(finishedRamp(DitherType::None, DitherType::Ordered), burkes());
    EXPECT_EQ(finishedRamp(DitherType::Ordered, DitherType::None), threshold());
}

TEST(HalftoneTypes, OfStencilsAreOrdinaryNumbersInTheArgument) {
    EXPECT_EQ(finishedRamp(DitherType::None, DitherType::Tattoo), floydSteinberg());
    EXPECT_EQ(finishedRamp(DitherType::None, DitherType::Tattoo_X8), floydSteinberg());
}

// At level 128 the 4 × 4 matrix makes the eight cells below 8 white.
TEST(HalftoneTypes, FloydSteinbergMakesHalfOfAMiddleGreyCellWhite) {
    TestPrinter printer;
    const Bytes page(16, 128);
    Bytes out(16);
    errorOutputOf(
        [&] { printer.PageProcess(DitherType::FloydSteinberg, page.data(), 4, 4, 4, out); });
    EXPECT_EQ(std::count(out.begin(), out.end(), 255), 8);
    EXPECT_EQ(std::count(out.begin(), out.end(), 0), 8);
}

}  // namespace
