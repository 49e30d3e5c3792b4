// DIRECTION, SHIFT and REFERENCE, by hand on a label of 4 x 3 dots.
#include "tests/unit/tspl/test_support.h"

namespace tspl {
namespace {

// An L in the upper left corner; the commands come before it.
Texts placed(const std::string& commands) {
    return pictureOf("SIZE 4 dot,3 dot\nCLS\n" + commands +
                     "\nBAR 0,0,1,2\nBAR 0,1,3,1\nPRINT 1\n");
}

const Texts sUpright = {"#...", "###.", "...."};
const Texts sTurned = {"....", ".###", "...#"};
const Texts sMirrored = {"...#", ".###", "...."};
const Texts sBoth = {"....", "###.", "#..."};

TEST(Direction, ZeroPrintsUpright) {
    EXPECT_EQ(placed(""), sUpright);
    EXPECT_EQ(placed("DIRECTION 0"), sUpright);
    EXPECT_EQ(placed("DIRECTION 0,0"), sUpright);
}

TEST(Direction, OneTurnsBy180Degrees) {
    EXPECT_EQ(placed("DIRECTION 1"), sTurned);
    EXPECT_EQ(placed("DIRECTION 1,0"), sTurned);
}

TEST(Direction, MirrorsWithItsSecondNumber) {
    EXPECT_EQ(placed("DIRECTION 0,1"), sMirrored);
    EXPECT_EQ(placed("DIRECTION 1,1"), sBoth);
}

TEST(Direction, WithoutASecondNumberMirrorsNoMore) {
    EXPECT_EQ(placed("DIRECTION 0,1\nDIRECTION 0"), sUpright);
}

TEST(Direction, ThatNoPrinterTakesChangesNothing) {
    EXPECT_EQ(placed("DIRECTION 1,1\nDIRECTION 2\nDIRECTION 0,2\nDIRECTION -1\nDIRECTION 0,-1"),
              sBoth);
}

TEST(Direction, CountsWhenTheLabelIsPrinted) {
    EXPECT_EQ(pictureOf("SIZE 4 dot,1 dot\nBAR 0,0,1,1\nDIRECTION 1\nBAR 1,0,1,1\nPRINT 1"),
              Texts{"..##"});
}

TEST(Direction, StaysForTheNextLabels) {
    RecordingSink sink;
    obeyStream(
        "DIRECTION 1\nSIZE 4 dot,1 dot\nCLS\nBAR 0,0,1,1\nPRINT 1\nSIZE 3 dot,1 dot\nCLS\n"
        "BAR 0,0,1,1\nPRINT 1\nDIRECTION 0\nPRINT 1\n",
        sink);
    ASSERT_EQ(sink.labels.size(), 3U);
    EXPECT_EQ(sink.labels[0].rows, Texts{"...#"});
    EXPECT_EQ(sink.labels[1].rows, Texts{"..#"});
    EXPECT_EQ(sink.labels[2].rows, Texts{"#.."});
}

TEST(Shift, OfOneNumberMovesUpAndDown) {
    EXPECT_EQ(placed("SHIFT 1"), (Texts{"....", "#...", "###."}));
    EXPECT_EQ(placed("SHIFT -1"), (Texts{"###.", "....", "...."}));
}

TEST(Shift, OfTwoNumbersMovesAsideFirst) {
    EXPECT_EQ(placed("SHIFT 1,0"), (Texts{".#..", ".###", "...."}));
    EXPECT_EQ(placed("SHIFT -1,1"), (Texts{"....", "....", "##.."}));
}

TEST(Shift, OfOneNumberMovesAsideNoMore) {
    EXPECT_EQ(placed("SHIFT 2,1\nSHIFT 0"), sUpright);
}

TEST(Shift, IsOnThePaperWhateverTheDirection) {
    EXPECT_EQ(placed("DIRECTION 1\nSHIFT 0,-1"), (Texts{".###", "...#", "...."}));
    EXPECT_EQ(placed("DIRECTION 0,1\nSHIFT -1,0"), (Texts{"..#.", "###.", "...."}));
    EXPECT_EQ(placed("DIRECTION 1,1\nSHIFT 1,-1"), (Texts{".###", ".#..", "...."}));
}

TEST(Shift, AwayFromTheLabelPrintsABareOne) {
    EXPECT_EQ(placed("SHIFT 2147483647,-2147483648"), Texts(3, "...."));
}

TEST(Shift, ThatCutsDotsOffIsComplainedOf) {
    EXPECT_EQ(findingsOf("SIZE 4 dot,3 dot\nSHIFT 0,2\nBAR 0,0,1,2\nPRINT 1"),
              Texts{"complaint 39 1 dot lies outside the label and is cut off"});
    EXPECT_EQ(findingsOf("SIZE 4 dot,3 dot\nSHIFT 0,1\nBAR 0,0,1,2\nPRINT 1"), Texts{});
}

TEST(Reference, MovesWhatIsDrawnAfterIt) {
    EXPECT_EQ(placed("REFERENCE 1,1"), (Texts{"....", ".#..", ".###"}));
    EXPECT_EQ(placed("REFERENCE -1,0"), (Texts{"....", "##..", "...."}));
    EXPECT_EQ(pictureOf("SIZE 4 dot,1 dot\nBAR 0,0,1,1\nREFERENCE 2,0\nBAR 0,0,1,1\nPRINT 1"),
              Texts{"#.#."});
}

TEST(Reference, IsCountedFromTheCornerEachTime) {
    EXPECT_EQ(placed("REFERENCE 1,1\nREFERENCE 1,0"), (Texts{".#..", ".###", "...."}));
    EXPECT_EQ(placed("REFERENCE 1,1\nREFERENCE 0,0"), sUpright);
}

TEST(Reference, TurnsWithTheLabel) {
    EXPECT_EQ(placed("REFERENCE 1,1\nDIRECTION 1"), (Texts{"###.", "..#.", "...."}));
    EXPECT_EQ(placed("REFERENCE 1,0\nDIRECTION 0,1"), (Texts{"..#.", "###.", "...."}));
}

TEST(Reference, OfTheLargestNumbersMovesEverythingAway) {
    EXPECT_EQ(placed("REFERENCE 2147483647,-2147483648"), Texts(3, "...."));
}

}  // namespace
}  // namespace tspl
