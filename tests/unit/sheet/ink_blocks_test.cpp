#include "intake/sheet/ink_blocks.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "intake/sheet/cell_grid.h"
#include "tests/unit/sheet/drawing.h"

namespace intake::sheet {
namespace {

std::vector<InkBlock> blocksOf(const Drawing& drawing, int shortestSide = 10) {
    return findInkBlocks(InkMap(drawing.page()), 1, shortestSide);
}

const InkBlock* find(const std::vector<InkBlock>& blocks, const DotRectangle& extent) {
    const auto found = std::ranges::find(blocks, extent, &InkBlock::extent);
    return found == blocks.end() ? nullptr : &*found;
}

TEST(CellGrid, KnowsTheDistanceFromInkInCells) {
    Drawing drawing(14, 10);
    drawing.fill({4, 4, 5, 5});
    const CellGrid grid(InkMap(drawing.page()), 2);
    EXPECT_EQ(grid.width(), 7);
    EXPECT_EQ(grid.height(), 5);
    EXPECT_EQ(grid.distance(2, 2), 0);
    EXPECT_EQ(grid.distance(3, 3), 1) << "across the corner";
    EXPECT_EQ(grid.distance(0, 2), 2);
    EXPECT_EQ(grid.distance(6, 0), 4);
}

TEST(CellGrid, ForgetsInkThatIsTakenForWhite) {
    Drawing drawing(9, 1);
    drawing.fill({0, 0, 1, 1});
    drawing.fill({8, 0, 9, 1});
    CellGrid grid(InkMap(drawing.page()), 1);
    grid.clear({{8, 0, 9, 1}});
    EXPECT_EQ(grid.distance(8, 0), 8);
    EXPECT_EQ(grid.distance(1, 0), 1);
}

TEST(CellGrid, GroupsWhatIsNear) {
    Drawing drawing(20, 1);
    drawing.fill({0, 0, 1, 1});
    drawing.fill({5, 0, 6, 1});
    drawing.fill({19, 0, 20, 1});
    const CellGrid grid(InkMap(drawing.page()), 1);
    EXPECT_EQ(grid.groups(1).size(), 3U);
    EXPECT_EQ(grid.groups(2), (std::vector<DotRectangle>{{0, 0, 6, 1}, {19, 0, 20, 1}}));
    EXPECT_EQ(grid.groups(7), (std::vector<DotRectangle>{{0, 0, 20, 1}}));
}

TEST(InkBlocks, AreWhatMoreWhiteIsAroundThanWithin) {
    Drawing drawing(300, 200);
    drawing.text({20, 20, 116, 116});
    drawing.text({180, 20, 276, 116});
    const auto blocks = blocksOf(drawing, 50);
    const InkBlock* const left = find(blocks, {20, 20, 116, 116});
    ASSERT_NE(left, nullptr);
    EXPECT_TRUE(left->isLasting);
    EXPECT_NE(find(blocks, {180, 20, 276, 116}), nullptr);
    EXPECT_EQ(blocks.size(), 2U) << "64 points are too far to make one block of them";
}

TEST(InkBlocks, AreOneAsWellWhenTheyAreNotFar) {
    Drawing drawing(300, 200);
    drawing.fill({20, 20, 120, 120});
    drawing.fill({140, 20, 240, 120});
    const auto blocks = blocksOf(drawing, 50);
    EXPECT_NE(find(blocks, {20, 20, 120, 120}), nullptr);
    EXPECT_NE(find(blocks, {20, 20, 240, 120}), nullptr);
}

TEST(InkBlocks, AreNotLastingWhenTheWhiteAroundIsThatWithin) {
    Drawing drawing(300, 400);
    for (int row = 0; row < 12; ++row) {
        drawing.fill({50, 20 + 30 * row, 250, 30 + 30 * row});
    }
    for (const InkBlock& block : blocksOf(drawing, 50)) {
        EXPECT_TRUE(!block.isLasting || block.extent == (DotRectangle{50, 20, 250, 360}))
            << block.extent.top << " to " << block.extent.bottom;
    }
}

TEST(InkBlocks, LeaveOutCutMarks) {
    Drawing drawing(300, 300);
    drawing.fill({50, 50, 150, 200});
    drawing.fill({20, 30, 44, 31});
    drawing.fill({160, 206, 161, 230});
    const auto blocks = blocksOf(drawing, 50);
    ASSERT_EQ(blocks.size(), 1U);
    EXPECT_EQ(blocks[0].extent, (DotRectangle{50, 50, 150, 200}));
}

TEST(InkBlocks, TakeShortLinesAmongTheInkForInk) {
    Drawing drawing(300, 300);
    drawing.fill({50, 50, 150, 200});
    drawing.fill({50, 203, 74, 204});
    const auto blocks = blocksOf(drawing, 50);
    EXPECT_NE(find(blocks, {50, 50, 150, 204}), nullptr);
}

TEST(InkBlocks, HaveNoOutlineThroughOtherInk) {
    Drawing drawing(400, 400);
    drawing.fill({50, 50, 60, 300});
    drawing.fill({50, 290, 300, 300});
    // Within the corner and out of it, far from both of its sides.
    drawing.fill({180, 20, 190, 170});
    for (const InkBlock& block : blocksOf(drawing, 50)) {
        EXPECT_NE(block.extent, (DotRectangle{50, 50, 300, 300}));
    }
}

}  // namespace
}  // namespace intake::sheet
