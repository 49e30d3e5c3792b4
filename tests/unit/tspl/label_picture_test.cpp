// How a label's dots come to stand on the paper, by hand on a label of 4 x 3 dots.
#include <algorithm>

#include "tests/unit/tspl/test_support.h"

namespace tspl {
namespace {

//  An L in the upper left corner, on a canvas that is larger than the label.
class PictureOfAnL : public testing::Test {
protected:
    PictureOfAnL() {
        canvas_.fill({0, 0, 1, 2});
        canvas_.fill({0, 1, 3, 1});
        canvas_.fill({4, 0, 6, 1});
        canvas_.fill({0, 3, 1, 4});
    }

    [[nodiscard]] LabelPicture picture(const Placement& placement) const {
        return {canvas_, 4, 3, 300, placement};
    }
    [[nodiscard]] Texts rows(const Placement& placement) const {
        return rowsOf(picture(placement));
    }

    DotCanvas canvas_{10, 7};
};

TEST_F(PictureOfAnL, HasTheSizeAndTheResolutionOfTheLabel) {
    EXPECT_EQ(picture({}).width(), 4);
    EXPECT_EQ(picture({}).height(), 3);
    EXPECT_EQ(picture({}).dpi(), 300);
}

TEST_F(PictureOfAnL, StandsUprightInDirectionZero) {
    EXPECT_EQ(rows({}), (Texts{"#...", "###.", "...."}));
}

TEST_F(PictureOfAnL, IsTurnedBy180Degrees) {
    EXPECT_EQ(rows({.turned = true}), (Texts{"....", ".###", "...#"}));
}

TEST_F(PictureOfAnL, IsMirroredLeftToRight) {
    EXPECT_EQ(rows({.mirrored = true}), (Texts{"...#", ".###", "...."}));
}

TEST_F(PictureOfAnL, IsMirroredAndTurned) {
    EXPECT_EQ(rows({.mirrored = true, .turned = true}), (Texts{"....", "###.", "#..."}));
}

TEST_F(PictureOfAnL, IsShiftedToTheRightAndDown) {
    EXPECT_EQ(rows({.shiftX = 2}), (Texts{"..#.", "..##", "...."}));
    EXPECT_EQ(rows({.shiftY = 1}), (Texts{"....", "#...", "###."}));
    EXPECT_EQ(rows({.shiftX = 1, .shiftY = 2}), (Texts{"....", "....", ".#.."}));
}

TEST_F(PictureOfAnL, IsShiftedToTheLeftAndUp) {
    EXPECT_EQ(rows({.shiftX = -1}), (Texts{"....", "##..", "...."}));
    EXPECT_EQ(rows({.shiftY = -1}), (Texts{"###.", "....", "...."}));
}

TEST_F(PictureOfAnL, IsShiftedOnThePaperWhenItIsTurnedOrMirrored) {
    EXPECT_EQ(rows({.turned = true, .shiftX = 1}), (Texts{"....", "..##", "...."}));
    EXPECT_EQ(rows({.turned = true, .shiftY = -1}), (Texts{".###", "...#", "...."}));
    EXPECT_EQ(rows({.mirrored = true, .shiftX = -1}), (Texts{"..#.", "###.", "...."}));
}

TEST_F(PictureOfAnL, IsBareWhenItIsShiftedAway) {
    const Texts bare = {"....", "....", "...."};
    for (const std::int64_t far : {std::int64_t{4}, std::int64_t{INT32_MAX}}) {
        EXPECT_EQ(rows({.shiftX = far}), bare);
        EXPECT_EQ(rows({.shiftX = -far}), bare);
        EXPECT_EQ(rows({.shiftY = far}), bare);
        EXPECT_EQ(rows({.turned = true, .shiftY = -far}), bare);
    }
}

TEST_F(PictureOfAnL, StaysAsItIsUprightInDirectionZero) {
    const Placement placements[] = {
        {}, {.mirrored = true}, {.shiftX = 1, .shiftY = -1}, {.mirrored = true, .shiftX = -1}};
    for (const Placement& placement : placements) {
        LabelPicture upright = picture(placement);
        upright.turnUpright();
        EXPECT_EQ(rowsOf(upright), rows(placement));
    }
}

TEST_F(PictureOfAnL, HasItsTopAtTheTopWhenItIsTurnedUpright) {
    const auto upright = [this](const Placement& placement) {
        LabelPicture turned = picture(placement);
        turned.turnUpright();
        return rowsOf(turned);
    };
    EXPECT_EQ(upright({.turned = true}), (Texts{"#...", "###.", "...."}));
    EXPECT_EQ(upright({.mirrored = true, .turned = true}), (Texts{"...#", ".###", "...."}));
    // What is to the right and down on the paper is to the left and up for its reader.
    EXPECT_EQ(upright({.turned = true, .shiftX = 1}), (Texts{"....", "##..", "...."}));
    EXPECT_EQ(upright({.turned = true, .shiftX = -1}), (Texts{".#..", ".###", "...."}));
    EXPECT_EQ(upright({.turned = true, .shiftY = 1}), (Texts{"###.", "....", "...."}));
    EXPECT_EQ(upright({.turned = true, .shiftX = -2, .shiftY = -1}),
              (Texts{"....", "..#.", "..##"}));
    EXPECT_EQ(upright({.mirrored = true, .turned = true, .shiftX = 1}),
              (Texts{"..#.", "###.", "...."}));
}

TEST_F(PictureOfAnL, IsUprightTheSamePaperTurnedBy180Degrees) {
    for (const bool mirrored : {false, true}) {
        for (std::int64_t x = -5; x <= 5; ++x) {
            for (std::int64_t y = -4; y <= 4; ++y) {
                LabelPicture upright = picture({mirrored, true, x, y});
                Texts paper = rowsOf(upright);
                std::reverse(paper.begin(), paper.end());
                for (std::string& row : paper) {
                    std::reverse(row.begin(), row.end());
                }
                upright.turnUpright();
                EXPECT_EQ(rowsOf(upright), paper) << x << ", " << y;
            }
        }
    }
}

TEST_F(PictureOfAnL, CountsTheDotsThatItShows) {
    EXPECT_EQ(picture({}).burntDots(), 4U);
    EXPECT_EQ(picture({.mirrored = true, .turned = true}).burntDots(), 4U);
    EXPECT_EQ(picture({.shiftX = 2}).burntDots(), 3U);
    EXPECT_EQ(picture({.shiftX = 4}).burntDots(), 0U);
}

TEST_F(PictureOfAnL, CountsTheDotsThatItShowsInEveryPlacement) {
    for (const bool mirrored : {false, true}) {
        for (const bool turned : {false, true}) {
            for (std::int64_t x = -5; x <= 5; ++x) {
                for (std::int64_t y = -4; y <= 4; ++y) {
                    const LabelPicture placed = picture({mirrored, turned, x, y});
                    std::uint64_t shown = 0;
                    for (const std::string& row : rowsOf(placed)) {
                        shown +=
                            static_cast<std::uint64_t>(std::count(row.begin(), row.end(), '#'));
                    }
                    EXPECT_EQ(placed.burntDots(), shown) << x << ", " << y;
                }
            }
        }
    }
}

TEST_F(PictureOfAnL, ShowsWhatIsOnTheCanvasNow) {
    const LabelPicture now = picture({});
    canvas_.clear();
    EXPECT_EQ(now.burntDots(), 0U);
}

TEST(LabelPicture, OfALabelLargerThanItsCanvasIsBareThere) {
    DotCanvas canvas(2, 1);
    canvas.fill({0, 0, 2, 1});
    EXPECT_EQ(rowsOf(LabelPicture(canvas, 3, 2, 203, {})), (Texts{"##.", "..."}));
    EXPECT_EQ(rowsOf(LabelPicture(canvas, 3, 2, 203, {.turned = true})), (Texts{"...", ".##"}));
}

}  // namespace
}  // namespace tspl
