// Labels of 60 x 90 points on pages of 300 x 400: blocks are at least 45 dots wide.
#include "intake/sheet/label_finder.h"

#include <gtest/gtest.h>

#include <ostream>

#include "tests/unit/sheet/drawing.h"

namespace intake::sheet {

static bool operator==(const Rectangle& a, const Rectangle& b) {
    return a.left == b.left && a.top == b.top && a.right == b.right && a.bottom == b.bottom;
}

static void PrintTo(const Rectangle& part, std::ostream* stream) {
    *stream << part.left << " " << part.top << " " << part.right << " " << part.bottom;
}

namespace {

using Labels = std::vector<Rectangle>;

constexpr DotRectangle sPlace{100, 100, 160, 190};

Labels labelsOf(const Drawing& drawing) {
    return findLabels(drawing.page(), {60, 90});
}

Drawing blank() {
    return {300, 400};
}

TEST(LabelFinder, FindsNothingOnAnEmptyPage) {
    EXPECT_TRUE(labelsOf(blank()).empty());
}

TEST(LabelFinder, FindsNothingOnAPageThatIsAllInk) {
    Drawing drawing = blank();
    drawing.fill({0, 0, 300, 400});
    EXPECT_TRUE(labelsOf(drawing).empty());
}

TEST(LabelFinder, CutsAlongAFrame) {
    Drawing drawing = blank();
    drawing.frame(sPlace);
    drawing.text({110, 110, 150, 180});
    EXPECT_EQ(labelsOf(drawing), (Labels{{100, 100, 160, 190}}));
}

TEST(LabelFinder, FindsAFrameThatLies) {
    Drawing drawing = blank();
    drawing.frame({50, 50, 140, 110});
    EXPECT_EQ(labelsOf(drawing), (Labels{{50, 50, 140, 110}}));
}

TEST(LabelFinder, LeavesOutWhatTouchesAFrame) {
    Drawing drawing = blank();
    drawing.frame(sPlace);
    drawing.fill({160, 120, 200, 130});
    drawing.fill({110, 190, 150, 200});
    drawing.fill({0, 189, 300, 190});
    EXPECT_EQ(labelsOf(drawing), (Labels{{100, 100, 160, 190}}));
}

TEST(LabelFinder, CutsABlockWithALittleOfTheWhiteAroundIt) {
    Drawing drawing = blank();
    drawing.fill({103, 104, 155, 184});
    EXPECT_EQ(labelsOf(drawing), (Labels{{100, 101, 158, 187}}));
}

TEST(LabelFinder, TakesNoMoreWhiteThanTheLabelHas) {
    Drawing drawing = blank();
    drawing.fill({100, 100, 158, 187});
    EXPECT_EQ(labelsOf(drawing), (Labels{{99, 99, 159, 188}}));
}

TEST(LabelFinder, TakesNoWhiteBeyondOtherInk) {
    Drawing drawing = blank();
    drawing.frame({103, 104, 155, 184});
    drawing.fill({156, 120, 250, 130});
    EXPECT_EQ(labelsOf(drawing), (Labels{{102, 101, 156, 187}}));
}

TEST(LabelFinder, CutsWhatIsHardlyLargerToTheLabel) {
    Drawing drawing = blank();
    drawing.frame({100, 100, 162, 191});
    EXPECT_EQ(labelsOf(drawing), (Labels{{101, 100.5, 161, 190.5}}));
}

TEST(LabelFinder, LeavesWhatIsLargerAsItIs) {
    Drawing drawing = blank();
    drawing.frame({100, 100, 166, 199});
    EXPECT_EQ(labelsOf(drawing), (Labels{{100, 100, 166, 199}}));
}

TEST(LabelFinder, LeavesOutInstructionsBesideABlock) {
    Drawing drawing = blank();
    drawing.text({100, 100, 156, 186});
    drawing.text({20, 260, 280, 380});
    EXPECT_EQ(labelsOf(drawing), (Labels{{98, 98, 158, 188}}));
}

TEST(LabelFinder, TakesNoPartThatOtherInkIsHardlyFurtherFromThanItsOwnParts) {
    Drawing drawing = blank();
    drawing.fill({100, 100, 160, 140});
    drawing.fill({100, 149, 160, 190});
    drawing.fill({172, 100, 240, 190});
    EXPECT_TRUE(labelsOf(drawing).empty());
}

TEST(LabelFinder, ReadsLabelsRowByRow) {
    Drawing drawing = blank();
    drawing.frame({200, 20, 260, 110});
    drawing.frame({20, 200, 80, 290});
    drawing.frame({20, 22, 80, 112});
    EXPECT_EQ(labelsOf(drawing),
              (Labels{{20, 22, 80, 112}, {200, 20, 260, 110}, {20, 200, 80, 290}}));
}

TEST(LabelFinder, FindsLabelsThatShareALine) {
    Drawing drawing = blank();
    drawing.frame({50, 50, 110, 140});
    drawing.frame({109, 50, 169, 140});
    EXPECT_EQ(labelsOf(drawing), (Labels{{50, 50, 110, 140}, {109, 50, 169, 140}}));
}

TEST(LabelFinder, TakesWhatFillsThePageForTheLabel) {
    Drawing drawing = blank();
    drawing.frame({20, 10, 270, 385});
    drawing.text({30, 20, 260, 375});
    EXPECT_EQ(labelsOf(drawing), (Labels{{20, 10, 270, 385}}));
}

TEST(LabelFinder, FindsNothingOfAnotherShape) {
    Drawing drawing = blank();
    drawing.frame({100, 100, 170, 190});
    drawing.fill({20, 300, 80, 360});
    EXPECT_TRUE(labelsOf(drawing).empty());
}

TEST(LabelFinder, CountsInPointsWhateverTheResolution) {
    Drawing drawing(600, 800);
    drawing.frame({200, 200, 320, 380});
    GreyPage page = drawing.page();
    page.dotsPerPoint = 2;
    EXPECT_EQ(findLabels(page, {60, 90}), (Labels{{100, 100, 160, 190}}));
}

}  // namespace
}  // namespace intake::sheet
