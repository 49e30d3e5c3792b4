// BAR, ERASE, REVERSE and BOX, by hand.
#include "tests/unit/tspl/test_support.h"

namespace tspl {
namespace {

// Commands, one per line, on a label of 8 x 5 dots.
Texts drawn(const std::string& commands) {
    return pictureOf("SIZE 8 dot,5 dot\nCLS\n" + commands + "\nPRINT 1\n");
}

TEST(Bar, BurnsItsWidthAndHeightFromItsCorner) {
    EXPECT_EQ(drawn("BAR 1,2,3,2"),
              (Texts{"........", "........", ".###....", ".###....", "........"}));
}

TEST(Bar, AddsToWhatIsThere) {
    EXPECT_EQ(drawn("BAR 0,0,2,1\nBAR 1,0,2,2"),
              (Texts{"###.....", ".##.....", "........", "........", "........"}));
}

TEST(Bar, IsCutAtEveryEdge) {
    EXPECT_EQ(drawn("BAR -2,-2,4,4\nBAR 7,4,100,100"),
              (Texts{"##......", "##......", "........", "........", ".......#"}));
}

TEST(Bar, WithoutAnExtentDrawsNothing) {
    const Texts bare(5, "........");
    EXPECT_EQ(drawn("BAR 1,1,0,2\nBAR 1,1,2,0\nBAR 3,3,-2,1\nBAR 3,3,1,-2"), bare);
}

TEST(Erase, BaresItsArea) {
    EXPECT_EQ(drawn("BAR 0,0,8,5\nERASE 1,1,6,3"),
              (Texts{"########", "#......#", "#......#", "#......#", "########"}));
}

TEST(Erase, OfMoreThanTheLabelBaresAllOfIt) {
    EXPECT_EQ(drawn("BAR 0,0,8,5\nERASE -9,-9,99,99"), Texts(5, "........"));
}

TEST(Reverse, SwapsItsArea) {
    EXPECT_EQ(drawn("BAR 0,0,4,5\nREVERSE 2,1,4,2"),
              (Texts{"####....", "##..##..", "##..##..", "####....", "####...."}));
}

TEST(Reverse, TwiceChangesNothing) {
    EXPECT_EQ(drawn("BAR 0,0,4,1\nREVERSE 2,0,4,2\nREVERSE 2,0,4,2"),
              (Texts{"####....", "........", "........", "........", "........"}));
}

TEST(Box, DrawsAFrameFromCornerToCorner) {
    EXPECT_EQ(drawn("BOX 1,0,7,4,1"),
              (Texts{".######.", ".#....#.", ".#....#.", ".######.", "........"}));
}

TEST(Box, DrawsAThickerFrameInwards) {
    EXPECT_EQ(drawn("BOX 0,0,8,5,2"),
              (Texts{"########", "########", "##....##", "########", "########"}));
}

TEST(Box, IsFullWhenItsLinesMeet) {
    const Texts full = {"........", ".######.", ".######.", ".######.", ".######."};
    EXPECT_EQ(drawn("BOX 1,1,7,5,2"), full);
    EXPECT_EQ(drawn("BOX 1,1,7,5,3"), full);
    EXPECT_EQ(drawn("BOX 1,1,7,5,4"), full);
    EXPECT_EQ(drawn("BOX 1,1,7,5,5"), full);
    EXPECT_EQ(drawn("BOX 1,1,7,5,2147483647"), full);
}

TEST(Box, ThatIsHighAndNarrowIsFullToo) {
    const Texts full(5, ".##.....");
    EXPECT_EQ(drawn("BOX 1,0,3,5,1"), full);
    EXPECT_EQ(drawn("BOX 1,0,3,5,2"), full);
    EXPECT_EQ(drawn("BOX 1,0,3,5,9"), full);
    EXPECT_EQ(drawn("BOX 1,0,2,5,1"), Texts(5, ".#......"));
    EXPECT_EQ(drawn("BOX 1,0,4,5,2"), Texts(5, ".###...."));
}

TEST(Box, KeepsTheDotsWithinIt) {
    EXPECT_EQ(drawn("BAR 3,2,1,1\nBOX 0,0,8,5,1"),
              (Texts{"########", "#......#", "#..#...#", "#......#", "########"}));
}

TEST(Box, WithoutAnExtentDrawsNothing) {
    const Texts bare(5, "........");
    EXPECT_EQ(drawn("BOX 1,1,1,4,1\nBOX 1,1,4,1,1\nBOX 4,4,1,1,1\nBOX 1,1,4,4,0\nBOX 1,1,4,4,-1"),
              bare);
}

TEST(Box, HasRoundCornersWhereARadiusIsGiven) {
    EXPECT_EQ(drawn("BOX 1,0,7,4,1,2"),
              (Texts{"..####..", ".#....#.", ".#....#.", "..####..", "........"}));
    EXPECT_EQ(drawn("BOX 1,0,7,4,1,0"), drawn("BOX 1,0,7,4,1"));
}

// Each dot of the frame is counted once, whether it lies on the label or beyond.
TEST(Box, BeyondTheLabelIsCutOffAndCounted) {
    const std::string start = "SIZE 8 dot,5 dot\nBOX ";
    EXPECT_EQ(findingsOf(start + "10,0,14,4,1\nPRINT 1"),
              Texts{"complaint 17 12 dots lie outside the label and are cut off"});
    EXPECT_EQ(findingsOf(start + "10,0,14,4,2\nPRINT 1"),
              Texts{"complaint 17 16 dots lie outside the label and are cut off"});
    EXPECT_EQ(findingsOf(start + "10,0,15,4,2\nPRINT 1"),
              Texts{"complaint 17 20 dots lie outside the label and are cut off"});
    EXPECT_EQ(findingsOf(start + "10,0,14,5,3\nPRINT 1"),
              Texts{"complaint 17 20 dots lie outside the label and are cut off"});
}

TEST(Box, OfTheLargestNumbersIsCutOff) {
    EXPECT_EQ(drawn("BOX -2147483648,-2147483648,2147483647,2147483647,1"), Texts(5, "........"));
    EXPECT_EQ(drawn("BOX -2147483648,-2147483648,2147483647,3,2"),
              (Texts{"........", "########", "########", "........", "........"}));
    EXPECT_EQ(drawn("BOX -2147483648,-2147483648,2147483647,2147483647,2147483647"),
              Texts(5, "########"));
}

TEST(Drawing, MovesWithTheReference) {
    EXPECT_EQ(drawn("REFERENCE 2,1\nBAR 0,0,2,1\nBOX 3,0,6,3,1"),
              (Texts{"........", "..##.###", ".....#.#", ".....###", "........"}));
    EXPECT_EQ(drawn("BAR 0,0,8,5\nREFERENCE 1,1\nERASE 0,0,2,2\nREVERSE 4,2,2,2"),
              (Texts{"########", "#..#####", "#..#####", "#####..#", "#####..#"}));
}

}  // namespace
}  // namespace tspl
