#include <gtest/gtest.h>

#include "tests/preview/dot_picture.h"
#include "tests/preview/preview_run.h"

namespace {

struct Drawing {
    std::string name;
    std::string commands;
    std::vector<std::string> rows;
};

// Drawn by hand on a label of 8 × 6 dots, on which a bitmap burns the upper left corner.
const std::string corner = "BITMAP 0,0,1,2,0,\x1f\x7f\r\n";

const Drawing sDrawings[] = {
    {"ABitmapOverwrites",
     "BAR 0,0,8,6\r\nBITMAP 0,1,1,2,0,\xf0\x0f\r\n",
     {"########", "....####", "####....", "########", "########", "########"}},
    {"ABitmapOfModeOneIsAdded",
     "BAR 0,0,2,3\r\nBITMAP 0,1,1,1,1,\xf1\r\n",
     {"##......", "##..###.", "##......", "........", "........", "........"}},
    {"ABitmapOfModeTwoSwaps",
     "BAR 0,0,2,3\r\nBITMAP 0,1,1,1,2,\x8f\r\n",
     {"##......", "#.##....", "##......", "........", "........", "........"}},
    {"ABitmapStandsAnywhere",
     "BITMAP 3,2,1,2,0,\x0f\xf0\r\n",
     {"........", "........", "...####.", ".......#", "........", "........"}},
    {"AFrameLiesWithinItsCorners",
     "BOX 1,1,7,5,1\r\n",
     {"........", ".######.", ".#....#.", ".#....#.", ".######.", "........"}},
    {"EraseAndReverse",
     "BAR 0,0,8,6\r\nERASE 1,1,6,4\r\nREVERSE 4,0,4,3\r\n",
     {"####....", "#...###.", "#...###.", "#......#", "#......#", "########"}},
    {"AReferenceMovesWhatIsDrawn",
     "REFERENCE 2,3\r\n" + corner,
     {"........", "........", "........", "..###...", "..#.....", "........"}},
    {"DirectionOneIsReadAsDirectionZero",
     corner + "DIRECTION 1\r\n",
     {"###.....", "#.......", "........", "........", "........", "........"}},
    {"ASecondNumberMirrorsTheLabel",
     corner + "DIRECTION 0,1\r\n",
     {".....###", ".......#", "........", "........", "........", "........"}},
    {"ASecondNumberMirrorsTheLabelOfDirectionOne",
     corner + "DIRECTION 1,1\r\n",
     {".....###", ".......#", "........", "........", "........", "........"}},
    {"AShiftIsToTheRightAndDown",
     corner + "SHIFT 2,1\r\n",
     {"........", "..###...", "..#.....", "........", "........", "........"}},
    // On the paper it goes to the left and up, which is read from the other side.
    {"AShiftGoesTheOtherWayInDirectionOne",
     corner + "DIRECTION 1\r\nSHIFT -2,-1\r\n",
     {"........", "..###...", "..#.....", "........", "........", "........"}},
    {"TheLabelIsClearedByCls",
     corner + "CLS\r\n",
     {"........", "........", "........", "........", "........", "........"}},
};

// The same labels as they leave the printer.
const Drawing sFedDrawings[] = {
    {"DirectionZeroIsAsItIsRead",
     corner + "DIRECTION 0\r\n",
     {"###.....", "#.......", "........", "........", "........", "........"}},
    {"DirectionOneTurnsTheLabel",
     corner + "DIRECTION 1\r\n",
     {"........", "........", "........", "........", ".......#", ".....###"}},
    {"ASecondNumberMirrorsTheLabelBefore",
     corner + "DIRECTION 1,1\r\n",
     {"........", "........", "........", "........", "#.......", "###....."}},
    {"AShiftIsToTheRightAndDownWhateverTheDirection",
     corner + "DIRECTION 1\r\nSHIFT -2,-1\r\n",
     {"........", "........", "........", ".....#..", "...###..", "........"}},
};

class Picture : public testing::TestWithParam<Drawing> {};

void expectDrawn(const Drawing& drawing, const std::vector<std::string>& arguments) {
    const TemporaryFolder folder;
    const FilterResult result = runPreview(
        folder, arguments, "SIZE 8 dot,6 dot\r\nCLS\r\n" + drawing.commands + "PRINT 1\r\n");
    ASSERT_EQ(result.status, 0) << result.standardError;
    EXPECT_EQ(differenceOf(drawnPicture(drawing.rows), readPng(folder.path("label-1.png")).picture),
              "");
}

TEST_P(Picture, IsDrawnAsByHand) {
    expectDrawn(GetParam(), {});
}

class PictureInFeedDirection : public testing::TestWithParam<Drawing> {};

TEST_P(PictureInFeedDirection, IsDrawnAsByHand) {
    expectDrawn(GetParam(), {"--feed-direction"});
}

std::string nameOf(const testing::TestParamInfo<Drawing>& drawing) {
    return drawing.param.name;
}

INSTANTIATE_TEST_SUITE_P(Drawings, Picture, testing::ValuesIn(sDrawings), nameOf);
INSTANTIATE_TEST_SUITE_P(Drawings, PictureInFeedDirection, testing::ValuesIn(sFedDrawings), nameOf);

}  // namespace
