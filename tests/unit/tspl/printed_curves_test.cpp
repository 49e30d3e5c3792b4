// CIRCLE, ELLIPSE, DIAGONAL and round BOX corners: by hand where they are small, by the definition
// of an ellipse where they are large.
#include <cmath>

#include "tests/unit/tspl/test_support.h"

namespace tspl {
namespace {

Texts drawn(const std::string& size, const std::string& commands) {
    return pictureOf("SIZE " + size + "\nCLS\n" + commands + "\nPRINT 1\n");
}

Texts small(const std::string& commands) {
    return drawn("8 dot,6 dot", commands);
}

// How far a dot's middle is inside an ellipse in a box at (0, 0): 1 in its middle, 0 on its line.
double depth(double x, double y, double width, double height) {
    return 1 -
           std::hypot((x + 0.5 - width / 2) / (width / 2), (y + 0.5 - height / 2) / (height / 2));
}

// Whether a row has a burnt dot in a column.
bool burns(const Texts& rows, int x, int y) {
    return rows[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)] == '#';
}

void expectRing(int width, int height, int thick) {
    const std::string size = std::to_string(width) + " dot," + std::to_string(height) + " dot";
    const Texts rows = drawn(size, "ELLIPSE 0,0," + std::to_string(width) + "," +
                                       std::to_string(height) + "," + std::to_string(thick));
    constexpr double unsure = 0.004;  // so near to a line a dot may fall on either side
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const double outer = depth(x, y, width, height);
            const double inner = depth(x - thick, y - thick, width - 2 * thick, height - 2 * thick);
            if (std::abs(outer) > unsure && std::abs(inner) > unsure) {
                EXPECT_EQ(burns(rows, x, y), outer > 0 && inner < 0) << x << "," << y;
            }
        }
    }
}

TEST(Ellipse, BurnsTheDotsBetweenItsOutlineAndOneWithinIt) {
    expectRing(200, 100, 10);
    expectRing(101, 301, 3);
    expectRing(64, 64, 1);
}

TEST(Circle, IsAnEllipseAsHighAsItIsWide) {
    EXPECT_EQ(drawn("40 dot,40 dot", "CIRCLE 3,4,30,5"),
              drawn("40 dot,40 dot", "ELLIPSE 3,4,30,30,5"));
}

TEST(Circle, LiesInTheSquareFromItsCornerOn) {
    EXPECT_EQ(small("CIRCLE 1,1,4,1"),
              (Texts{"........", "..##....", ".#..#...", ".#..#...", "..##....", "........"}));
}

TEST(Circle, IsADiscWhereTheRingIsAsThickAsItsRadius) {
    const Texts disc = {".##.....", "####....", "####....", ".##.....", "........", "........"};
    EXPECT_EQ(small("CIRCLE 0,0,4,2"), disc);
    EXPECT_EQ(small("CIRCLE 0,0,4,2147483647"), disc);
}

TEST(Circle, AddsToWhatIsThereAndIsMovedByReference) {
    EXPECT_EQ(small("BAR 0,0,1,6\nREFERENCE 3,1\nCIRCLE 0,0,4,2"),
              (Texts{"#.......", "#...##..", "#..####.", "#..####.", "#...##..", "#......."}));
}

TEST(Circle, BeyondTheLabelIsCutOffAndComplainedOf) {
    RecordingSink sink;
    obeyStream("SIZE 8 dot,6 dot\nCLS\nCIRCLE 6,1,4,2\nPRINT 1\n", sink);
    EXPECT_EQ(sink.labels.at(0).rows.at(2), "......##");
    EXPECT_EQ(sink.findings, Texts{"complaint 21 6 dots lie outside the label and are cut off"});
}

TEST(Diagonal, GoesFromItsFirstDotToItsLastOne) {
    EXPECT_EQ(small("DIAGONAL 1,1,5,1,1"),
              (Texts{"........", ".#####..", "........", "........", "........", "........"}));
    EXPECT_EQ(small("DIAGONAL 5,1,1,1,1"), small("DIAGONAL 1,1,5,1,1"));
    EXPECT_EQ(small("DIAGONAL 2,0,2,5,1"), Texts(6, "..#....."));
}

TEST(Diagonal, GoesThroughEveryRowAndColumnBetween) {
    const Texts rows = drawn("50 dot,50 dot", "DIAGONAL 3,5,40,44,2");
    for (std::size_t y = 0; y < 50; ++y) {
        EXPECT_EQ(rows[y].find('#') != std::string::npos, y >= 4 && y <= 45) << y;
    }
    EXPECT_EQ(rows[24][21], '#');
}

TEST(Diagonal, IsAsThickAsItIsSaid) {
    const Texts rows = drawn("60 dot,60 dot", "DIAGONAL 10,30,50,30,7");
    int thick = 0;
    for (const std::string& row : rows) {
        thick += row[30] == '#' ? 1 : 0;
    }
    EXPECT_EQ(thick, 7);
}

TEST(RoundBox, HasQuartersOfACircleForCorners) {
    const Texts box = drawn("60 dot,60 dot", "BOX 0,0,60,50,4,10");
    const Texts circle = drawn("60 dot,60 dot", "CIRCLE 0,0,20,4");
    for (std::size_t y = 0; y < 10; ++y) {
        EXPECT_EQ(box[y].substr(0, 10), circle[y].substr(0, 10)) << y;
        EXPECT_EQ(box[y].substr(50, 10), circle[y].substr(10, 10)) << y;
        EXPECT_EQ(box[40 + y].substr(0, 10), circle[10 + y].substr(0, 10)) << y;
    }
    EXPECT_EQ(box[2].substr(10, 40), std::string(40, '#'));
    EXPECT_EQ(box[25], "####" + std::string(52, '.') + "####");
}

TEST(RoundBox, WithARadiusLargerThanHalfOfItEndsInHalfCircles) {
    EXPECT_EQ(drawn("60 dot,60 dot", "BOX 0,0,60,20,20,1000"),
              drawn("60 dot,60 dot", "BOX 0,0,60,20,20,10"));
}

TEST(Curve, WithoutAnExtentIsComplainedOf) {
    for (const std::string line : {"CIRCLE 1,1,0,1", "CIRCLE 1,1,5,0", "ELLIPSE 1,1,5,-1,1",
                                   "DIAGONAL 1,1,5,5,0", "BOX 5,5,5,9,1,2"}) {
        const std::string name = line.substr(0, line.find(' '));
        EXPECT_EQ(findingsOf(line), Texts{"complaint 0 " + name + " without an extent: " + line});
    }
}

TEST(Curve, LargerThanAnyLabelIsComplainedOfAndNotDrawn) {
    for (const std::string line :
         {"CIRCLE 0,0,16385,1", "ELLIPSE 0,0,5,2147483647,1", "DIAGONAL 0,0,2147483647,0,1",
          "DIAGONAL 0,0,1,1,2147483647", "BOX 0,0,20000,10,1,2"}) {
        const std::string name = line.substr(0, line.find(' '));
        EXPECT_EQ(findingsOf(line),
                  Texts{"complaint 0 " + name + " is larger than any label: " + line});
    }
    EXPECT_EQ(findingsOf("CIRCLE 0,0,16384,1\n"), Texts{});
}

}  // namespace
}  // namespace tspl
