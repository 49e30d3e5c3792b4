#include "intake/sheet/frames.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/unit/sheet/drawing.h"

namespace intake::sheet {
namespace {

bool isAny(const DotRectangle& /*frame*/) {
    return true;
}

std::vector<Frame> framesOf(const Drawing& drawing) {
    return findFrames(findFrameLines(InkMap(drawing.page()), 50, 1), 1, isAny);
}

bool has(const std::vector<Frame>& frames, const DotRectangle& extent) {
    return std::ranges::find(frames, extent, &Frame::extent) != frames.end();
}

TEST(FrameLines, AreRunsOfInkThatAreLongEnough) {
    Drawing drawing(100, 20);
    drawing.fill({10, 3, 60, 4});
    drawing.fill({10, 9, 59, 10});
    const FrameLines lines = findFrameLines(InkMap(drawing.page()), 50, 1);
    EXPECT_EQ(lines.across, (std::vector<DotRectangle>{{10, 3, 60, 4}}));
    EXPECT_TRUE(lines.down.empty());
}

TEST(FrameLines, MayHaveSmallGaps) {
    Drawing drawing(20, 100);
    drawing.fill({5, 10, 6, 40});
    drawing.fill({5, 41, 6, 70});
    drawing.fill({9, 10, 10, 40});
    drawing.fill({9, 42, 10, 70});
    const FrameLines lines = findFrameLines(InkMap(drawing.page()), 50, 1);
    EXPECT_EQ(lines.down, (std::vector<DotRectangle>{{5, 10, 6, 70}}));
}

TEST(FrameLines, OfSeveralRowsAreOne) {
    Drawing drawing(100, 20);
    drawing.fill({10, 3, 80, 6});
    drawing.fill({5, 6, 80, 7});
    const FrameLines lines = findFrameLines(InkMap(drawing.page()), 50, 1);
    EXPECT_EQ(lines.across, (std::vector<DotRectangle>{{5, 3, 80, 7}}));
}

TEST(FrameLines, AreTheLongestOnesOfVeryMany) {
    Drawing drawing(400, 300);
    for (int row = 0; row < 100; ++row) {
        drawing.fill({0, 3 * row, 100 + row, 3 * row + 1});
    }
    const FrameLines lines = findFrameLines(InkMap(drawing.page()), 50, 1);
    ASSERT_EQ(lines.across.size(), 64U);
    EXPECT_EQ(lines.across.front().width(), 199);
    EXPECT_EQ(lines.across.back().width(), 136);
}

TEST(Frames, AreFourLines) {
    Drawing drawing(200, 200);
    drawing.frame({20, 30, 120, 180});
    const auto frames = framesOf(drawing);
    ASSERT_EQ(frames.size(), 1U);
    EXPECT_EQ(frames[0].extent, (DotRectangle{20, 30, 120, 180}));
    EXPECT_TRUE(frames[0].isClosed);
}

TEST(Frames, NeedAllFourSides) {
    Drawing drawing(200, 200);
    drawing.fill({20, 30, 120, 31});
    drawing.fill({20, 179, 120, 180});
    drawing.fill({20, 30, 21, 180});
    EXPECT_TRUE(framesOf(drawing).empty());
}

TEST(Frames, HaveLinesThatMayGoOnBeyondTheCorners) {
    Drawing drawing(200, 200);
    drawing.frame({20, 30, 120, 180});
    drawing.fill({0, 179, 200, 180});
    EXPECT_TRUE(has(framesOf(drawing), {20, 30, 120, 180}));
}

TEST(Frames, MayHaveRoundCorners) {
    Drawing drawing(200, 200);
    drawing.fill({25, 30, 115, 31});
    drawing.fill({25, 179, 115, 180});
    drawing.fill({20, 35, 21, 175});
    drawing.fill({119, 35, 120, 175});
    const auto frames = framesOf(drawing);
    ASSERT_TRUE(has(frames, {20, 30, 120, 180}));
    EXPECT_FALSE(frames[0].isClosed);
}

TEST(Frames, HaveLinesAlongMostOfTheirSides) {
    Drawing drawing(300, 200);
    drawing.frame({20, 30, 120, 180});
    // A side that the lines do not reach.
    drawing.fill({150, 30, 151, 180});
    EXPECT_FALSE(has(framesOf(drawing), {20, 30, 151, 180}));
}

}  // namespace
}  // namespace intake::sheet
