// Filled, bared and swapped areas of the canvas.
#include <algorithm>
#include <limits>

#include "tests/unit/tspl/plain_canvas.h"
#include "tests/unit/tspl/test_support.h"

namespace tspl {
namespace {

TEST(DotCanvas, IsBareAtFirst) {
    const DotCanvas canvas(10, 2);
    EXPECT_EQ(rowsOf(canvas), (Texts{"..........", ".........."}));
    EXPECT_EQ(canvas.burntDots(), 0U);
    EXPECT_EQ(canvas.dotsOutside(), 0U);
    EXPECT_EQ(canvas.burntArea().width, 0);
    EXPECT_EQ(canvas.burntArea().height, 0);
}

TEST(DotCanvas, FillsAnArea) {
    DotCanvas canvas(10, 3);
    canvas.fill({1, 1, 8, 1});
    EXPECT_EQ(rowsOf(canvas), (Texts{"..........", ".########.", ".........."}));
    EXPECT_EQ(canvas.burntDots(), 8U);
    EXPECT_EQ(canvas.burntArea().width, 9);
    EXPECT_EQ(canvas.burntArea().height, 2);
}

TEST(DotCanvas, ErasesAnArea) {
    DotCanvas canvas(10, 2);
    canvas.fill({0, 0, 10, 2});
    canvas.erase({7, 0, 2, 1});
    EXPECT_EQ(rowsOf(canvas), (Texts{"#######..#", "##########"}));
}

TEST(DotCanvas, SwapsAnArea) {
    DotCanvas canvas(10, 2);
    canvas.fill({0, 0, 4, 1});
    canvas.invert({2, 0, 7, 2});
    EXPECT_EQ(rowsOf(canvas), (Texts{"##..#####.", "..#######."}));
}

TEST(DotCanvas, CountsTheDotsOfAFilledAreaThatLieOutside) {
    DotCanvas canvas(10, 2);
    canvas.fill({-1, -1, 12, 4});
    EXPECT_EQ(canvas.burntDots(), 20U);
    EXPECT_EQ(canvas.dotsOutside(), 28U);
    canvas.fill({100, 100, 5, 5});
    EXPECT_EQ(canvas.dotsOutside(), 53U);
}

TEST(DotCanvas, CountsNoDotsOutsideThatAreErasedOrSwapped) {
    DotCanvas canvas(10, 2);
    canvas.erase({-1, -1, 12, 4});
    canvas.invert({-1, -1, 12, 4});
    EXPECT_EQ(canvas.burntDots(), 20U);
    EXPECT_EQ(canvas.dotsOutside(), 0U);
}

TEST(DotCanvas, IsBareAgainWhenCleared) {
    DotCanvas canvas(10, 2);
    canvas.fill({0, 0, 20, 2});
    canvas.clear();
    EXPECT_EQ(rowsOf(canvas), (Texts{"..........", ".........."}));
    EXPECT_EQ(canvas.dotsOutside(), 0U);
    EXPECT_EQ(canvas.burntArea().height, 0);
    canvas.fill({9, 1, 1, 1});
    EXPECT_EQ(rowsOf(canvas), (Texts{"..........", ".........#"}));
}

TEST(DotCanvas, LeavesAreasWithoutAnExtentOut) {
    DotCanvas canvas(10, 2);
    for (const Area& area : {Area{1, 1, 0, 1}, Area{1, 1, 1, 0}, Area{5, 1, -3, 1},
                             Area{5, 1, 1, -1}, Area{5, 1, -3, -1}, Area{50, 1, -3, 1}}) {
        canvas.fill(area);
        canvas.invert(area);
        EXPECT_EQ(canvas.burntDots(), 0U);
        EXPECT_EQ(canvas.dotsOutside(), 0U);
    }
}

TEST(DotCanvas, OfNoDotsCountsEverythingAsOutside) {
    for (const auto& [width, height] : {std::pair{0, 0}, std::pair{0, 5}, std::pair{5, 0}}) {
        DotCanvas canvas(width, height);
        canvas.fill({0, 0, 3, 2});
        canvas.erase({0, 0, 3, 2});
        canvas.invert({0, 0, 3, 2});
        canvas.drawBits(0, 0, bytesOf("\x03"), DrawMode::Or);
        EXPECT_EQ(canvas.burntDots(), 0U);
        EXPECT_EQ(canvas.dotsOutside(), 8U);
        EXPECT_EQ(canvas.burntArea().width, 0);
        EXPECT_FALSE(canvas.burns(0, 0));
    }
}

TEST(DotCanvas, CountsTheDotsThatBurnInAnArea) {
    DotCanvas canvas(20, 3);
    canvas.fill({3, 0, 15, 2});
    EXPECT_EQ(canvas.burntDots({0, 0, 20, 3}), 30U);
    EXPECT_EQ(canvas.burntDots({0, 1, 4, 2}), 1U);
    EXPECT_EQ(canvas.burntDots({7, 0, 10, 1}), 10U);
    EXPECT_EQ(canvas.burntDots({-9, -9, 13, 10}), 1U);
    EXPECT_EQ(canvas.burntDots({17, 1, 99, 99}), 1U);
    EXPECT_EQ(canvas.burntDots({0, 2, 20, 1}), 0U);
    EXPECT_EQ(canvas.burntDots({0, 0, 0, 3}), 0U);
    EXPECT_EQ(canvas.burntDots({5, 0, -2, 3}), 0U);
    EXPECT_EQ(canvas.burntDots({50, 50, 5, 5}), 0U);
}

TEST(DotCanvas, TakesAreasOfTheLargestNumbers) {
    constexpr std::int64_t huge = std::int64_t{1} << 32;
    DotCanvas canvas(10, 2);
    canvas.fill({-huge, -huge, huge, huge / 2});
    EXPECT_EQ(canvas.burntDots(), 0U);
    EXPECT_EQ(canvas.dotsOutside(), std::uint64_t{1} << 63U);
    canvas.clear();
    canvas.fill({0, 0, huge - 1, huge - 1});
    EXPECT_EQ(canvas.burntDots(), 20U);
    EXPECT_EQ(canvas.dotsOutside(), 18446744065119617025U - 20U);
}

TEST(DotCanvas, StopsCountingDotsOutsideAtTheLargestNumber) {
    constexpr std::int64_t huge = std::int64_t{1} << 31;
    DotCanvas canvas(10, 2);
    for (int i = 0; i < 10; ++i) {
        canvas.fill({20, 0, huge, huge});
    }
    EXPECT_EQ(canvas.dotsOutside(), std::numeric_limits<std::uint64_t>::max());
}

// Every area of a canvas of 19 x 4 dots with a margin around it.
TEST(DotCanvas, MeetsThePlainCanvasForEveryArea) {
    constexpr std::int64_t width = 19;
    constexpr std::int64_t height = 4;
    for (std::int64_t x = -10; x < width + 4; ++x) {
        for (std::int64_t extent = 0; extent <= width + 14; ++extent) {
            const std::int64_t y = (x + 10) % (height + 3) - 2;
            const Area area{x, y, extent, extent % 4};
            DotCanvas canvas(width, height);
            PlainCanvas plain(width, height);
            canvas.fill(area);
            plain.fill(area);
            expectSame(canvas, plain);
            const Area aside{x + 3, y - 1, extent, 3};
            canvas.invert(aside);
            plain.invert(aside);
            expectSame(canvas, plain);
            const Area within{x + 1, y, extent - 2, 2};
            canvas.erase(within);
            plain.erase(within);
            expectSame(canvas, plain);
        }
    }
}

}  // namespace
}  // namespace tspl
