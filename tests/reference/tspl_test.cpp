// Checks the TSPL commands against texts written out by hand.
#include <gtest/gtest.h>

#include <string>

#include "tests/reference/test_pages.h"
#include "tests/reference/tspl.h"

namespace reference {
namespace {

using namespace std::string_literals;

TEST(ReferenceTspl, OneByteOfBlackPixelsHasAllBitsSet) {
    EXPECT_EQ(bitmapCommand(rowImage(Bytes(8, 0))), "BITMAP 0,0,1,1,0,\xFF\r\n");
    EXPECT_EQ(bitmapCommand(rowImage(Bytes(8, 255))), "BITMAP 0,0,1,1,0,\0\r\n"s);
}

TEST(ReferenceTspl, BitsBehindTheLastPixelAreSet) {
    EXPECT_EQ(bitmapCommand(rowImage(Bytes(10, 1))), "BITMAP 0,0,2,1,0,\0\x3F\r\n"s);
    Bytes pixels(12, 1);
    pixels[0] = 0;
    EXPECT_EQ(bitmapCommand(rowImage(pixels)), "BITMAP 0,0,2,1,0,\x80\x0F\r\n");
}

TEST(ReferenceTspl, AnImageWithoutRowsHasNoData) {
    EXPECT_EQ(bitmapCommand(filledImage(8, 0, 0)), "BITMAP 0,0,1,0,0,\r\n");
}

TEST(ReferenceTspl, RowsLeanWhenTheWidthIsNoMultipleOfFour) {
    // The two padding bytes of each row, 0, print as dots ahead of the rows that follow.
    const GreyImage image = imageFromPacked(Bytes(30, 1), 10, 3);
    EXPECT_EQ(bitmapCommand(image), "BITMAP 0,0,2,3,0,\0\x3F\xC0\x3F\x30\x3F\r\n"s);
}

TEST(ReferenceTspl, TheGapCommandFollowsThePaperType) {
    EXPECT_EQ(gapCommand(5, "Normal"), "");
    EXPECT_EQ(gapCommand(3, "Continue"), "GAP 0, 0\r\n");
    EXPECT_EQ(gapCommand(0, "LabelGaps"), "GAP 0, 0\r\n");
    EXPECT_EQ(gapCommand(-1, ""), "GAP 0, 0\r\n");
    EXPECT_EQ(gapCommand(2, "LabelGaps"), "GAP 2.0 mm, 0.0 mm\r\n");
    EXPECT_EQ(gapCommand(3, "LabelMark"), "BLINE 3.0 mm, 0.0 mm\r\n");
    EXPECT_EQ(gapCommand(2, ""), "");
}

TEST(ReferenceTspl, SkippedAndUnknownPaperTypesAreTraced) {
    EXPECT_EQ(gapLog(0, "Normal"), Lines{"DEBUG:Skip the GAP cmd by Normal paper type"});
    EXPECT_EQ(gapLog(2, ""), Lines{"DEBUG:Unknown paper type: !"});
    EXPECT_EQ(gapLog(0, ""), Lines{});
    EXPECT_EQ(gapLog(2, "LabelMark"), Lines{});
}

TEST(ReferenceTspl, TheSpeedIsSentAsChosenWhenItIsAPositiveNumber) {
    EXPECT_EQ(speedCommand("4.5"), "SPEED 4.5\r\n");
    EXPECT_EQ(speedCommand("3"), "SPEED 3\r\n");
    for (const char* speed : {"", "0", "-1", "Normal", "3Normal", "fast"}) {
        EXPECT_EQ(speedCommand(speed), "") << speed;
    }
}

TEST(ReferenceTspl, TheDensityIsSentFrom0To30) {
    EXPECT_EQ(densityCommand(0), "DENSITY 0\r\n");
    EXPECT_EQ(densityCommand(30), "DENSITY 30\r\n");
    EXPECT_EQ(densityCommand(31), "");
    EXPECT_EQ(densityCommand(-1), "");
}

TEST(ReferenceTspl, DirectionAndRibbonFollowTheirChoices) {
    EXPECT_EQ(directionCommand("Rotation180"), "DIRECTION 1,0\r\n");
    EXPECT_EQ(directionCommand("Normal"), "DIRECTION 0,0\r\n");
    EXPECT_EQ(ribbonCommand("Direct"), "SET RIBBON OFF\r\n");
    EXPECT_EQ(ribbonCommand("ThermalTransfer"), "SET RIBBON ON\r\n");
    EXPECT_EQ(ribbonCommand(""), "");
}

TEST(ReferenceTspl, EveryPostActionSetsAllThreeModes) {
    const std::string off = "SET TEAR OFF\r\nSET PEEL OFF\r\nSET CUTTER OFF\r\n";
    const std::string cut = "SET TEAR OFF\r\nSET PEEL OFF\r\nSET CUTTER ON\r\n";
    EXPECT_EQ(postActionCommands("Normal"), off);
    EXPECT_EQ(postActionCommands("None"), off);
    EXPECT_EQ(postActionCommands("TearOff"), "SET TEAR ON\r\nSET PEEL OFF\r\nSET CUTTER OFF\r\n");
    EXPECT_EQ(postActionCommands("PeelOff"), "SET TEAR OFF\r\nSET PEEL ON\r\nSET CUTTER OFF\r\n");
    EXPECT_EQ(postActionCommands("Cut"), cut);
    EXPECT_EQ(postActionCommands("PartialCut"), cut);
    EXPECT_EQ(postActionCommands(""), "");
}

TEST(ReferenceTspl, TheSizeIsThatOfTheRasterPage) {
    PageHeader header;
    header.width = 800;
    header.height = 1200;
    header.yDpi = 300;
    const Settings sized = withPageSize({}, header);
    EXPECT_EQ(sizeCommand(sized.pageWidth, sized.pageHeight), "SIZE 100.1 mm, 101.6 mm\r\n");
}

TEST(ReferenceTspl, APageIsSetUpClearedDrawnAndPrinted) {
    PageHeader header = uniformPage(8, 1, 0).header;
    header.copies = 2;
    EXPECT_EQ(tsplPage({}, header, rowImage(Bytes(8, 0))),
              kSetUpOf8Dots + "CLS\r\nBITMAP 0,0,1,1,0,\xFF\r\nPRINT 1,2\r\n");
}

}  // namespace
}  // namespace reference
