#include "intake/sheet/ink_map.h"

#include <gtest/gtest.h>

#include <array>

#include "tests/unit/sheet/drawing.h"

namespace intake::sheet {
namespace {

TEST(InkMap, CountsTheInkOfAnyRectangle) {
    Drawing drawing(7, 5);
    drawing.fill({1, 1, 4, 3});
    drawing.fill({6, 4, 7, 5});
    const InkMap ink(drawing.page());
    EXPECT_EQ(ink.count({0, 0, 7, 5}), 7);
    EXPECT_EQ(ink.count({0, 0, 2, 2}), 1);
    EXPECT_EQ(ink.count({3, 2, 7, 5}), 2);
    EXPECT_EQ(ink.count({4, 0, 7, 4}), 0);
    EXPECT_TRUE(ink.has(3, 2));
    EXPECT_FALSE(ink.has(4, 2));
}

TEST(InkMap, HasNothingOutsideOfThePage) {
    Drawing drawing(3, 3);
    drawing.fill({0, 0, 3, 3});
    const InkMap ink(drawing.page());
    EXPECT_EQ(ink.count({-5, -5, 1, 1}), 1);
    EXPECT_EQ(ink.count({2, 2, 9, 9}), 1);
    EXPECT_EQ(ink.count({3, 0, 9, 3}), 0);
    EXPECT_EQ(ink.count({2, 2, 1, 1}), 0) << "a rectangle that ends before it starts";
}

TEST(InkMap, TakesWhatCannotBeSeenForPaper) {
    Drawing drawing(3, 1);
    drawing.fill({0, 0, 1, 1}, 247);
    drawing.fill({1, 0, 2, 1}, 248);
    const InkMap ink(drawing.page());
    EXPECT_TRUE(ink.has(0, 0));
    EXPECT_FALSE(ink.has(1, 0));
}

TEST(InkMap, LeavesOutWhatIsBetweenRows) {
    const std::array<unsigned char, 8> dots{255, 255, 0, 0, 255, 0, 0, 0};
    const InkMap ink({dots.data(), 2, 2, 4, 1});
    EXPECT_EQ(ink.count({0, 0, 2, 2}), 1);
}

TEST(InkMap, KnowsTheExtentOfTheInkInARectangle) {
    Drawing drawing(10, 10);
    drawing.fill({2, 3, 5, 4});
    drawing.fill({7, 8, 8, 9});
    const InkMap ink(drawing.page());
    EXPECT_EQ(ink.extent({0, 0, 10, 10}), (DotRectangle{2, 3, 8, 9}));
    EXPECT_EQ(ink.extent({3, 0, 10, 6}), (DotRectangle{3, 3, 5, 4}));
    EXPECT_TRUE(ink.extent({0, 0, 2, 10}).isEmpty());
}

}  // namespace
}  // namespace intake::sheet
