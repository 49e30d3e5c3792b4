#include "intake/sheet/label_matrix.h"

#include <gtest/gtest.h>

#include <utility>

namespace intake::sheet {
namespace {

using Point = std::pair<double, double>;

Point moved(const Matrix& m, double x, double y) {
    return {m.a * x + m.c * y + m.e, m.b * x + m.d * y + m.f};
}

// What shows of it is 100 wide and 200 high.
PageView page(int quarters, double unit = 1) {
    return {10, 20, 110, 220, quarters, unit};
}

TEST(LabelMatrix, SeesTheLowerLeftCornerWhereThePageIsTurnedTo) {
    EXPECT_EQ(moved(toSeen(page(0)), 10, 20), Point(0, 200));
    EXPECT_EQ(moved(toSeen(page(1)), 10, 20), Point(0, 0)) << "clockwise: the upper left corner";
    EXPECT_EQ(moved(toSeen(page(2)), 10, 20), Point(100, 0));
    EXPECT_EQ(moved(toSeen(page(3)), 10, 20), Point(200, 100));
}

TEST(LabelMatrix, SeesTheUpperLeftCornerWhereThePageIsTurnedTo) {
    EXPECT_EQ(moved(toSeen(page(0)), 10, 220), Point(0, 0));
    EXPECT_EQ(moved(toSeen(page(1)), 10, 220), Point(200, 0));
    EXPECT_EQ(moved(toSeen(page(2)), 10, 220), Point(100, 200));
    EXPECT_EQ(moved(toSeen(page(3)), 10, 220), Point(0, 100));
}

TEST(LabelMatrix, CountsThePointsOfAUnit) {
    EXPECT_EQ(moved(toSeen(page(0, 2)), 110, 20), Point(200, 400));
    EXPECT_EQ(moved(toSeen(page(1, 2)), 110, 20), Point(0, 200));
    EXPECT_DOUBLE_EQ(seenPage(page(0, 2)).width(), 200);
    EXPECT_DOUBLE_EQ(seenPage(page(1, 2)).width(), 400);
}

TEST(LabelMatrix, TurnsTheCutAboutItsOwnPage) {
    const Rectangle cut{5, 10, 35, 70};
    // The cut's upper left corner, on pages of 30 by 60 and of 60 by 30 points.
    EXPECT_EQ(moved(toLabel(cut, 0), 5, 10), Point(0, 60));
    EXPECT_EQ(moved(toLabel(cut, 1), 5, 10), Point(60, 30));
    EXPECT_EQ(moved(toLabel(cut, 2), 5, 10), Point(30, 0));
    EXPECT_EQ(moved(toLabel(cut, 3), 5, 10), Point(0, 0));
    // And its upper right one.
    EXPECT_EQ(moved(toLabel(cut, 0), 35, 10), Point(30, 60));
    EXPECT_EQ(moved(toLabel(cut, 1), 35, 10), Point(60, 0));
    EXPECT_EQ(moved(toLabel(cut, 2), 35, 10), Point(0, 0));
    EXPECT_EQ(moved(toLabel(cut, 3), 35, 10), Point(0, 30));
}

TEST(LabelMatrix, ProductsAreOneMoveAfterTheOther) {
    const Matrix quarter{0, 1, -1, 0, 3, 4};
    const Matrix twice{2, 0, 0, 2, 1, 0};
    const Point first = moved(quarter, 5, 6);
    EXPECT_EQ(moved(quarter * twice, 5, 6), moved(twice, first.first, first.second));
}

TEST(LabelMatrix, ScalesDownOnlyAndAsLittleAsNeeded) {
    const LabelSides sides{{288, 432}, {286, 430}};
    EXPECT_DOUBLE_EQ(scaleFor({288, 432}, sides), 1) << "the label itself";
    EXPECT_DOUBLE_EQ(scaleFor({100, 100}, sides), 1);
    EXPECT_DOUBLE_EQ(scaleFor({572, 430}, sides), 0.5);
    EXPECT_DOUBLE_EQ(scaleFor({286, 860}, sides), 0.5);
}

}  // namespace
}  // namespace intake::sheet
