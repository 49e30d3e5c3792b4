// Every complaint and remark, each with the offset of the command that it is about.
#include "tests/unit/tspl/test_support.h"

namespace tspl {
namespace {

// What is found in a line that starts at byte 100.
Texts findingsIn(const std::string& line) {
    return findingsOf(std::string(100, '\n') + line + "\nHOME\n");
}

Texts complaint(const std::string& text) {
    return {"complaint 100 " + text};
}

TEST(Complaint, IsMadeOfAnUnknownCommand) {
    EXPECT_EQ(findingsIn("SIZZ 4,6"), complaint("unknown command: SIZZ 4,6"));
    EXPECT_EQ(findingsIn("what"), complaint("unknown command: what"));
    EXPECT_EQ(findingsIn("7"), complaint("unknown command: 7"));
    EXPECT_EQ(findingsIn("\x80\\"), complaint("unknown command: \\x80\\x5c"));
}

TEST(Complaint, OfALongLineShowsItsBeginning) {
    EXPECT_EQ(findingsIn("X234567890123456789012345678901234567890"),
              complaint("unknown command: X234567890123456789012345678901234567890"));
    EXPECT_EQ(findingsIn("X2345678901234567890123456789012345678901"),
              complaint("unknown command: X234567890123456789012345678901234567890..."));
}

TEST(Complaint, IsMadeOfABitmapWhoseHeadCannotBeRead) {
    const std::string start = "BITMAP needs two positions, a width, a height, a mode and data: ";
    for (const std::string line :
         {"BITMAP", "BITMAP 0,0,1,1", "BITMAP 0,0,-1,1,0,", "bitmap 0,0,x,1,0,ab"}) {
        EXPECT_EQ(findingsIn(line), complaint(start + line));
    }
}

TEST(Complaint, IsMadeOfWrongArguments) {
    EXPECT_EQ(findingsIn("FEED"), complaint("FEED takes 1 argument, not 0"));
    EXPECT_EQ(findingsIn("size 4,x"), complaint("SIZE does not take \"x\""));
    EXPECT_EQ(findingsIn("TEXT \"a"), complaint("TEXT has a quotation mark that is never closed"));
}

TEST(Complaint, IsMadeOfALabelThatIsTooLarge) {
    EXPECT_EQ(findingsIn("SIZE 9000 mm,9000 mm"),
              complaint("a label of this size is too large to draw: SIZE 9000 mm,9000 mm"));
}

TEST(Complaint, IsMadeOfADirectionBeyondZeroAndOne) {
    for (const char* line : {"DIRECTION 2", "DIRECTION -1", "DIRECTION 0,2", "DIRECTION 1,-1"}) {
        EXPECT_EQ(findingsIn(line), complaint("DIRECTION takes 0 and 1"));
    }
}

TEST(Complaint, IsMadeOfASpeedThatIsNoPositiveNumber) {
    for (const std::string speed :
         {"0", "-1", "fast", "2x", "nan", "inf", "2 in", "0x2", "1e999"}) {
        EXPECT_EQ(findingsIn("SPEED " + speed), complaint("SPEED does not take \"" + speed + "\""));
    }
    for (const std::string speed : {"1", "1.5", "2.0", "12"}) {
        EXPECT_EQ(findingsIn("SPEED " + speed), Texts{});
    }
}

TEST(Complaint, IsMadeOfADensityBeyond0To30) {
    EXPECT_EQ(findingsIn("DENSITY -1"), complaint("DENSITY does not take -1"));
    EXPECT_EQ(findingsIn("DENSITY 31"), complaint("DENSITY does not take 31"));
    EXPECT_EQ(findingsIn("DENSITY 0"), Texts{});
    EXPECT_EQ(findingsIn("DENSITY 30"), Texts{});
}

TEST(Complaint, IsMadeOfASoundThatNoPrinterMakes) {
    EXPECT_EQ(findingsIn("SOUND 99,99999"),
              (Texts{"complaint 100 SOUND: the level is 0 to 9, not 99",
                     "complaint 100 SOUND: the interval is 1 to 4095, not 99999"}));
    EXPECT_EQ(findingsIn("SOUND -1,1"), complaint("SOUND: the level is 0 to 9, not -1"));
    EXPECT_EQ(findingsIn("SOUND 10,1"), complaint("SOUND: the level is 0 to 9, not 10"));
    EXPECT_EQ(findingsIn("SOUND 0,0"), complaint("SOUND: the interval is 1 to 4095, not 0"));
    EXPECT_EQ(findingsIn("SOUND 9,4096"), complaint("SOUND: the interval is 1 to 4095, not 4096"));
    EXPECT_EQ(findingsIn("SOUND 0,1"), Texts{});
    EXPECT_EQ(findingsIn("SOUND 9,4095"), Texts{});
}

TEST(Complaint, IsMadeOfADistanceThatNoPrinterMovesThePaper) {
    for (const std::string name : {"FEED", "BACKFEED", "BACKUP"}) {
        const std::string text = name + ": the distance is 0 to 9999, not ";
        EXPECT_EQ(findingsIn(name + " -1"), complaint(text + "-1"));
        EXPECT_EQ(findingsIn(name + " 10000"), complaint(text + "10000"));
        EXPECT_EQ(findingsIn(name + " 0"), Texts{});
        EXPECT_EQ(findingsIn(name + " 9999"), Texts{});
    }
}

TEST(Complaint, IsMadeOfATimeBelowZero) {
    EXPECT_EQ(findingsIn("DELAY -1"), complaint("DELAY: the time is 0 to 2147483647, not -1"));
    EXPECT_EQ(findingsIn("DELAY 0"), Texts{});
}

TEST(Complaint, IsMadeOfACountryThatHasNoSuchNumber) {
    EXPECT_EQ(findingsIn("COUNTRY 0"), complaint("COUNTRY: the number is 1 to 999, not 0"));
    EXPECT_EQ(findingsIn("COUNTRY 1000"), complaint("COUNTRY: the number is 1 to 999, not 1000"));
    EXPECT_EQ(findingsIn("COUNTRY USA"), complaint("COUNTRY does not take \"USA\""));
    EXPECT_EQ(findingsIn("COUNTRY 001"), Texts{});
    EXPECT_EQ(findingsIn("COUNTRY 999"), Texts{});
}

TEST(Complaint, IsMadeOfASetThatNoPrinterTakes) {
    EXPECT_EQ(findingsIn("SET TEER ON"), complaint("SET does not take TEER"));
    EXPECT_EQ(findingsIn("SET TEAR"), complaint("SET TEAR without a value"));
    EXPECT_EQ(findingsIn("SET TEAR X"), complaint("SET TEAR takes ON or OFF, not X"));
}

TEST(Complaint, IsMadeOfAnAreaWithoutAnExtent) {
    for (const std::string name : {"BAR", "ERASE", "REVERSE"}) {
        for (const std::string area : {"5,5,0,9", "5,5,9,0", "5,5,-3,9", "5,5,9,-3", "0,0,0,0"}) {
            const std::string line = name + " " + area;
            EXPECT_EQ(findingsIn(line), complaint(name + " without an extent: " + line));
        }
    }
}

TEST(Complaint, IsMadeOfABoxWithoutAnExtent) {
    for (const std::string line :
         {"BOX 5,5,5,9,1", "BOX 5,5,9,5,1", "BOX 9,9,5,5,1", "BOX 5,5,9,9,0", "BOX 5,5,9,9,-1"}) {
        EXPECT_EQ(findingsIn(line), complaint("BOX without an extent: " + line));
    }
}

TEST(Complaint, IsMadeOfAPrintThatPrintsNothing) {
    for (const std::string line : {"PRINT 0", "PRINT 1,0", "PRINT 0,1", "print -1", "PRINT 1,-1"}) {
        EXPECT_EQ(findingsIn(line), complaint(line + " prints nothing"));
    }
}

TEST(Complaint, IsMadeOfALabelWithoutASize) {
    EXPECT_EQ(findingsIn("PRINT 1"), complaint("the label has no size that can be drawn"));
    EXPECT_EQ(findingsIn("CLS\nSIZE 4,0\nPRINT 1"),
              Texts{"complaint 113 the label has no size that can be drawn"});
}

TEST(Complaint, IsMadeOfARefusedLabelAtItsSizeAndAtItsPrint) {
    EXPECT_EQ(findingsOf("SIZE 9 mm,999999 mm\nBAR 0,0,9,9\nPRINT 1\n"),
              (Texts{"complaint 0 a label of this size is too large to draw: SIZE 9 mm,999999 mm",
                     "complaint 32 the label has no size that can be drawn"}));
}

TEST(Complaint, IsMadeWhenMoreThanOneOfTearPeelAndCutterIsOn) {
    const std::string text = "more than one of SET TEAR, SET PEEL and SET CUTTER is on";
    EXPECT_EQ(findingsOf("SIZE 1,1\nBAR 0,0,9,9\nSET TEAR ON\nSET PEEL ON\nPRINT 1\n"),
              Texts{"complaint 45 " + text});
    EXPECT_EQ(
        findingsOf("SIZE 1,1\nBAR 0,0,9,9\nSET TEAR ON\nSET PEEL ON\nSET TEAR OFF\nPRINT 1\n"),
        Texts{});
    EXPECT_EQ(findingsOf("SIZE 1,1\nSET TEAR ON\nSET PEEL ON\n"), Texts{});
}

TEST(Complaint, IsMadeOfABitmapThatIsWiderThanTheLabel) {
    EXPECT_EQ(findingsOf("SIZE 8 dot,2 dot\nBITMAP 1,0,1,1,0,\x7F\nPRINT 1\n"),
              Texts{"complaint 17 BITMAP reaches to dot 9, the label is 8 dots wide"});
}

TEST(Complaint, IsMadeOfABitmapThatIsHigherThanTheLabel) {
    EXPECT_EQ(findingsOf("SIZE 8 dot,2 dot\nBITMAP 0,0,1,3,0,\x7F\xFF\xFF\nPRINT 1\n"),
              Texts{"complaint 17 BITMAP reaches to row 3, the label is 2 rows high"});
}

TEST(Complaint, IsMadeOfABitmapThatTheReferenceMovesOverTheEdges) {
    EXPECT_EQ(
        findingsOf(
            "SIZE 8 dot,2 dot\nREFERENCE 1,2\nBITMAP 0,0,1,1,0,\xFF\nBAR 0,-1,1,1\nPRINT 1\n"),
        (Texts{"complaint 31 BITMAP reaches to dot 9, the label is 8 dots wide",
               "complaint 31 BITMAP reaches to row 3, the label is 2 rows high"}));
}

TEST(Complaint, IsMadeOfTheBitmapsThatReachFarthest) {
    EXPECT_EQ(findingsOf("SIZE 8 dot,2 dot\nBITMAP 0,0,2,1,0,\xFF\xFF\nBITMAP 0,0,3,1,0,"
                         "\xFF\xFF\xFF\nBITMAP 0,0,1,4,0,\x7F\xFF\xFF\xFF\nPRINT 1\n"),
              (Texts{"complaint 37 BITMAP reaches to dot 24, the label is 8 dots wide",
                     "complaint 58 BITMAP reaches to row 4, the label is 2 rows high"}));
}

TEST(Complaint, IsMadeOfDotsOutsideTheLabel) {
    const std::string text = " dots lie outside the label and are cut off";
    EXPECT_EQ(findingsOf("SIZE 8 dot,2 dot\nBAR 7,0,3,2\nPRINT 1\n"),
              Texts{"complaint 17 4" + text});
    EXPECT_EQ(findingsOf("SIZE 8 dot,2 dot\nBITMAP 0,-1,1,1,0,\xFE\nPRINT 1\n"),
              Texts{"complaint 17 1 dot lies outside the label and is cut off"});
    EXPECT_EQ(findingsOf("SIZE 0.1,0.1\nBAR 20,0,1,1\nBAR 90,0,1,1\nPRINT 1\n"),
              (Texts{"complaint 13 2" + text,
                     "complaint 26 BAR reaches beyond the label, too: to dot 91"}));
}

TEST(Complaint, OfDotsOutsideIsMadeOfEveryCommandThatReachesOverAnEdge) {
    EXPECT_EQ(findingsOf("SIZE 8 dot,8 dot\nBAR 7,0,2,1\nBOX -2,-1,9,12,1\nBAR 1,1,1,1\n"
                         "REVERSE 0,7,1,2\nPRINT 1\n"),
              (Texts{"complaint 17 45 dots lie outside the label and are cut off",
                     "complaint 29 BOX reaches beyond the label, too: from dot -2 and from row -1 "
                     "and to dot 9 and to row 12",
                     "complaint 58 REVERSE reaches beyond the label, too: to row 9"}));
    // Too wide already, which is said once.
    EXPECT_EQ(
        findingsOf("SIZE 8 dot,8 dot\nBAR 7,0,2,1\nBITMAP 0,1,2,1,0,\x01\x01PRINT 1\n").size(), 2U);
}

// At 600 dpi the label has 600 dots, at 203 dpi it would end before either bar does.
TEST(Complaint, OfDotsOutsideIsMadeAtTheResolutionThatTheLabelTurnsOutToHave) {
    const std::string bars = "SIZE 1,1\nBAR 590,0,10,1\nBAR 590,0,11,1\n";
    const std::string bitmap = "BITMAP 0,9,75,1,0," + std::string(75, '\xFF') + "\n";
    EXPECT_EQ(findingsOf(bars + bitmap + "PRINT 1\n"),
              Texts{"complaint 24 1 dot lies outside the label and is cut off"});
}

// Of more only those that reach farther than all before.
TEST(Complaint, OfDotsOutsideIsMadeOfAThousandCommandsAndOfThoseThatReachFarther) {
    std::string stream = "SIZE 8 dot,8 dot\n";
    for (int i = 0; i < 1002; ++i) {
        stream += "BAR 8,0,1,1\n";
    }
    const Texts findings = findingsOf(stream + "BAR 8,0,5,1\nPRINT 1\n");
    ASSERT_EQ(findings.size(), 1001U);
    EXPECT_TRUE(findings.back().ends_with(" BAR reaches beyond the label, too: to dot 13"));
}

// Strips that end at the edge may turn out to reach over it, and these do not.
TEST(Complaint, OfDotsOutsideIsMadeOfNoSoundCommandHoweverManyThereAre) {
    std::string stream = "SIZE 1,1\n";
    for (int i = 0; i < 1100; ++i) {
        stream += "BITMAP 0,1,75,1,1," + std::string(75, '\0') + "\n";
    }
    const Texts findings = findingsOf(stream + "BOX 500,90,700,190,1\nBAR 0,590,9,20\nPRINT 1\n");
    ASSERT_EQ(findings.size(), 2U);
    const std::size_t box = 9 + std::size_t{1100} * (18 + 75 + 1);
    EXPECT_TRUE(findings[0].starts_with("complaint " + std::to_string(box) + " ")) << findings[0];
    EXPECT_EQ(findings[1], "complaint " + std::to_string(box + 21) +
                               " BAR reaches beyond the label, too: to row 610");
}

TEST(Complaint, OfDotsOutsideIsMadeOnceOfEachCommandAndOfNoneThatIsErased) {
    EXPECT_EQ(findingsOf("SIZE 8 dot,8 dot\nBAR 8,0,1,1\nBAR 8,2,1,1\nPRINT 1\nPRINT 1\n"),
              (Texts{"complaint 17 2 dots lie outside the label and are cut off",
                     "complaint 29 BAR reaches beyond the label, too: to dot 9",
                     "complaint 17 2 dots lie outside the label and are cut off"}));
    EXPECT_EQ(
        findingsOf("SIZE 8 dot,8 dot\nBAR 8,0,1,1\nPRINT 1\nERASE 0,0,9,9\nBAR 8,2,1,1\nPRINT 1\n"),
        (Texts{"complaint 17 1 dot lies outside the label and is cut off",
               "complaint 51 1 dot lies outside the label and is cut off"}));
    EXPECT_EQ(findingsOf("SIZE 8 dot,8 dot\nBAR 8,0,1,1\nERASE 8,0,1,1\nBAR 8,2,1,1\nPRINT 1\n"),
              Texts{"complaint 43 1 dot lies outside the label and is cut off"});
    // What is left of it counts.
    EXPECT_EQ(findingsOf("SIZE 8 dot,8 dot\nBAR 8,0,1,2\nERASE 8,0,1,1\nBAR 8,2,1,1\nPRINT 1\n"),
              (Texts{"complaint 17 2 dots lie outside the label and are cut off",
                     "complaint 43 BAR reaches beyond the label, too: to dot 9"}));
}

TEST(Complaint, OfDotsOutsideIsMadeForEachPrint) {
    EXPECT_EQ(
        findingsOf("SIZE 8 dot,2 dot\nBAR 7,0,3,2\nPRINT 1\nPRINT 1\nCLS\nBAR 0,0,1,1\nPRINT 1\n"),
        (Texts{"complaint 17 4 dots lie outside the label and are cut off",
               "complaint 17 4 dots lie outside the label and are cut off"}));
}

// 5 * 2^62 dots outside are more than the largest number; one dot lies on the label.
TEST(Complaint, OfDotsOutsideIsMadeAtTheFirstCommandThatReachesOverAnEdge) {
    const std::string start = "SIZE 8 dot,8 dot\nBAR 1,1,2,2\n";  // 29 bytes
    for (const char* bar : {"BAR 7,1,2,1", "BAR 1,7,1,2", "BAR -1,1,2,1", "BAR 1,-1,1,2"}) {
        const Texts findings =
            findingsOf(start + bar + "\nBAR 3,3,1,1\nBAR 0,0,20,20\nCLS\n" + bar + "\nPRINT 1\n");
        ASSERT_EQ(findings.size(), 1U);
        const std::size_t behindCls = 29 + std::string(bar).size() + 1 + 12 + 14 + 4;
        EXPECT_EQ(findings[0], "complaint " + std::to_string(behindCls) +
                                   " 1 dot lies outside the label and is cut off");
        EXPECT_TRUE(findingsOf(start + bar + "\nBAR 0,0,20,20\nPRINT 1\n")
                        .at(0)
                        .starts_with("complaint 29 "));
    }
}

TEST(Complaint, OfDotsThatShiftMovesOverAnEdgeIsMadeAtPrint) {
    EXPECT_EQ(findingsOf("SIZE 8 dot,8 dot\nBAR 7,0,1,1\nSHIFT 1,0\nPRINT 1\n"),
              Texts{"complaint 39 1 dot lies outside the label and is cut off"});
}

TEST(Complaint, IsMadeOfAnyNumberOfDotsOutside) {
    std::string stream = "SIZE 8 dot,2 dot\nBAR 0,0,1,1\n";
    for (int i = 0; i < 5; ++i) {
        stream += "BAR 20,0,2147483647,2147483647\n";
    }
    EXPECT_EQ(findingsOf(stream + "PRINT 1\n").at(0),
              "complaint 29 18446744073709551615 dots lie outside the label and are cut off");
}

TEST(Complaint, IsMadeOfAnUnknownModeOfABitmap) {
    EXPECT_EQ(findingsIn("BITMAP 0,0,1,1,4,a"), complaint("BITMAP does not take mode 4"));
    EXPECT_EQ(findingsIn("BITMAP 0,0,1,1,-1,a"), complaint("BITMAP does not take mode -1"));
}

TEST(Complaint, IsMadeOfABitmapThatIsCutShort) {
    EXPECT_EQ(findingsOf("\n\nBITMAP 0,0,2,3,0,abcd"),
              Texts{"complaint 2 BITMAP is cut short: 4 of 6 bytes are there"});
    EXPECT_EQ(findingsOf("BITMAP 0,0,2147483647,2147483647,0,"),
              Texts{"complaint 0 BITMAP is cut short: 0 of 4611686014132420609 bytes are there"});
}

TEST(Complaint, IsMadeOfADownloadThatIsCutShort) {
    EXPECT_EQ(findingsOf("\nDOWNLOAD \"A.BMP\",9,abc"),
              Texts{"complaint 1 DOWNLOAD is cut short: 3 of 9 bytes are there"});
}

TEST(Complaint, IsMadeOfADownloadWhoseSizeCannotBeRead) {
    EXPECT_EQ(findingsIn("DOWNLOAD \"A.BMP\",x,").size(), 1U);
    EXPECT_EQ(findingsIn("DOWNLOAD \"A.BMP\",-5,abc").size(), 1U);
}

TEST(Complaint, IsMadeOfAStoredProgramThatNeverEnds) {
    EXPECT_EQ(findingsOf("DOWNLOAD \"A.BAS\"\nCLS\nPRINT 1\n").size(), 1U);
}

TEST(Complaint, IsMadeOfALineThatIsTooLong) {
    EXPECT_EQ(findingsIn(std::string(StreamParser::longestLine + 1, 'x')),
              complaint("a line that is longer than any command is skipped"));
}

TEST(Complaint, IsNotMadeOfWhatIsDrawnButNotPrinted) {
    EXPECT_EQ(findingsOf("SIZE 8 dot,2 dot\nBAR 7,0,30,20\nBITMAP 0,0,9,1,0,123456789\n"), Texts{});
    EXPECT_EQ(findingsOf("SIZE 8 dot,2 dot\nBAR 7,0,30,20\nCLS\nBAR 0,0,1,1\nPRINT 1\n"), Texts{});
}

TEST(Complaint, IsMadeOfABlankLabel) {
    EXPECT_EQ(findingsOf("SIZE 8 dot,2 dot\nCLS\nPRINT 1\n"),
              Texts{"complaint 21 the label is blank"});
    EXPECT_EQ(findingsOf("SIZE 8 dot,2 dot\nBAR 0,0,1,1\nCLS\nPRINT 2\nBAR 0,0,1,1\nPRINT 1\n"),
              Texts{"complaint 33 the label is blank"});
    EXPECT_EQ(findingsOf("SIZE 8 dot,2 dot\nBITMAP 0,0,1,2,0,\xFF\xFF\nPRINT 1\n"),
              Texts{"complaint 37 the label is blank"});
}

TEST(Complaint, OfABlankLabelIsNotMadeWhereWhatIsThereIsNotDrawn) {
    const std::string start = "SIZE 8 dot,2 dot\n";
    for (const std::string command :
         {"TLC39 1,20,3,4,5", "BARCODE 1,1,\"128\",9,0,0,1,2,A$", "TEXT 1,1,\"1\",0,1,1,A$",
          "PUTBMP 1,1,\"LOGO.BMP\"", "PUTPCX 1,1,\"LOGO.PCX\"", "A=1"}) {
        for (const std::string& finding : findingsOf(start + command + "\nPRINT 1\n")) {
            EXPECT_TRUE(finding.starts_with("remark ")) << finding;
        }
        EXPECT_EQ(findingsOf(start + command + "\nCLS\nPRINT 1\n").back(),
                  "complaint " + std::to_string(17 + command.size() + 5) + " the label is blank");
    }
}

TEST(Complaint, OfABlankLabelIsNotMadeWhereACodeOrATextIsRefused) {
    for (const std::string command : {"QRCODE 1,1,Z,3,A,0,\"x\"", "TEXT 1,1,\"1\",45,1,1,\"x\"",
                                      "BARCODE 1,1,\"NONE\",9,0,0,1,2,\"1\""}) {
        EXPECT_EQ(findingsOf("SIZE 99 dot,99 dot\n" + command + "\nPRINT 1\n").size(), 1U)
            << command;
    }
}

TEST(Complaint, OfABlankLabelIsNotMadeWhereABlockIsRefused) {
    EXPECT_EQ(findingsOf("SIZE 99 dot,99 dot\nBLOCK 1,1,9,0,\"1\",0,1,1,\"x\"\nPRINT 1\n"),
              (Texts{"remark 19 BLOCK is drawn in a font that is only alike",
                     "complaint 19 BLOCK without an extent: BLOCK 1,1,9,0,\"1\",0,1,1,\"x\""}));
}

TEST(Complaint, OfABlankLabelIsNotMadeBesideThatOfDotsOutside) {
    EXPECT_EQ(findingsOf("SIZE 8 dot,2 dot\nBAR 8,0,1,1\nPRINT 1\n"),
              Texts{"complaint 17 1 dot lies outside the label and is cut off"});
}

TEST(Complaint, IsNotMadeOfABitmapOfNoDots) {
    EXPECT_EQ(findingsOf("SIZE 8 dot,2 dot\nBITMAP 90,0,0,1,0,\nBITMAP 0,90,1,0,0,\n"
                         "BAR 0,0,1,1\nPRINT 1\n"),
              Texts{});
}

// A printer of 203 dpi has 8 dots to the millimetre: 800 x 1200 fill the label.
TEST(Complaint, IsNotMadeOfABitmapThatFillsWholeMillimetres) {
    EXPECT_EQ(findingsOf("SIZE 100 mm,150 mm\nBITMAP 0,0,100,1200,0," + std::string(120000, '\0') +
                         "\nPRINT 1\n"),
              Texts{});
}

TEST(Complaint, IsNotMadeOfABitmapThatFillsManyWholeMillimetres) {
    PrinterOptions options;
    options.dpi = 203;
    EXPECT_EQ(findingsOf("SIZE 10 mm,500 mm\nBITMAP 0,0,10,4000,0," + std::string(40000, '\0') +
                             "\nPRINT 1\n",
                         options),
              Texts{});
}

TEST(Complaint, IsNotMadeOfWhatLeavesNoMark) {
    EXPECT_EQ(
        findingsOf("GAP 0,0\nOFFSET 0\nFEED 8\nBACKFEED 8\nFORMFEED\nHOME\nCUT\nEOJ\n"
                   "SOUND 1,2\nDELAY 9\nEOP\nSELFTEST\nCODEPAGE UTF-8\n\x1b!S~!T\n@1=\"7\"\n"),
        Texts{});
}

TEST(Remark, IsMadeOfWhatIsNotDrawn) {
    for (const std::string line : {"TLC39 1,2,0,\"123456\""}) {
        const std::string name = line.substr(0, line.find(' '));
        EXPECT_EQ(findingsIn(line), Texts{"remark 100 " + name + " is not drawn"});
    }
}

}  // namespace
}  // namespace tspl
