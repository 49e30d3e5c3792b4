#include <gtest/gtest.h>

#include "tests/preview/preview_run.h"

namespace {

struct Fault {
    std::string name;
    std::string stream;
    std::string complaint;  // behind the offset
    std::size_t offset;
    std::size_t line;
    std::string labels;
};

// A label of 16 × 8 dots that is not blank, on which the commands draw; they begin at byte 21, on
// the third line.
std::string label(const std::string& commands) {
    return "SIZE 2 mm,1 mm\r\nCLS\r\n" + commands + "\r\nBAR 0,0,1,1\r\nPRINT 1,1\r\n";
}

std::string zeros(std::size_t count) {
    return std::string(count, '\0');
}

const std::string sOne = "1 label, 1 complaint";
const std::string sNone = "no label: nothing is printed without PRINT; 1 complaint";

const Fault sFaults[] = {
    {"ABitmapThatTheStreamCutsOff", "BITMAP 0,0,4,100,0," + zeros(17),
     "BITMAP is cut short: 17 of 400 bytes are there", 0, 1, sNone},
    {"ABitmapWiderThanTheLabel", label("BITMAP 0,0,3,1,0,\xff\xff\xff"),
     "BITMAP reaches to dot 24, the label is 16 dots wide", 21, 3, sOne},
    {"ABitmapThatStandsTooFarRight", label("BITMAP 8,0,2,1,0,\xff\xff"),
     "BITMAP reaches to dot 24, the label is 16 dots wide", 21, 3, sOne},
    {"ABitmapHigherThanTheLabel", label("BITMAP 0,0,1,10,0," + std::string(10, '\xff')),
     "BITMAP reaches to row 10, the label is 8 rows high", 21, 3, sOne},
    {"ABitmapOfAModeThatIsNone", label("BITMAP 0,0,1,1,4,\xff"), "BITMAP does not take mode 4", 21,
     3, sOne},
    {"ABitmapHeadThatIsNone", label("BITMAP 0,0,x,1,0,\xff"),
     "BITMAP needs two positions, a width, a height, a mode and data: BITMAP 0,0,x,1,0,\\xff", 21,
     3, sOne},
    {"DotsBesideTheLabel", label("BAR 14,6,4,3"), "8 dots lie outside the label and are cut off",
     21, 3, sOne},
    {"APrintOfNoCopies", label("PRINT 1,0"), "PRINT 1,0 prints nothing", 21, 3, sOne},
    {"APrintOfNoSets", label("PRINT 0"), "PRINT 0 prints nothing", 21, 3, sOne},
    {"APrintWithoutALabel", "PRINT 1\r\n", "the label has no size that can be drawn", 0, 1, sOne},
    {"TwoActionsAfterEachLabel", label("SET TEAR ON\r\nSET CUTTER ON"),
     "more than one of SET TEAR, SET PEEL and SET CUTTER is on", 62, 6, sOne},
    {"ASettingThatIsNone", label("SET WRONG ON"), "SET does not take WRONG", 21, 3, sOne},
    {"ASettingThatIsNeitherOnNorOff", label("SET PEEL 7"), "SET PEEL takes ON or OFF, not 7", 21, 3,
     sOne},
    {"ASettingWithoutAValue", label("SET RIBBON"), "SET RIBBON without a value", 21, 3, sOne},
    {"AnUnknownCommand", label("SPIN 3"), "unknown command: SPIN 3", 21, 3, sOne},
    {"TooFewArguments", label("BAR 1,2,3"), "BAR takes 4 arguments, not 3", 21, 3, sOne},
    {"TooManyArguments", label("DENSITY 8,8"), "DENSITY takes 1 argument, not 2", 21, 3, sOne},
    {"AnArgumentThatIsNoNumber", label("BAR 1,2,3,x"), "BAR does not take \"x\"", 21, 3, sOne},
    {"ALengthWithoutAUnitOfLengths", label("GAP 2 km,0"), "GAP does not take \"2 km\"", 21, 3,
     sOne},
    {"ADirectionThatIsNone", label("DIRECTION 2"), "DIRECTION takes 0 and 1", 21, 3, sOne},
    {"ASpeedThatIsNone", label("SPEED 0"), "SPEED does not take \"0\"", 21, 3, sOne},
    {"ADensityThatIsNone", label("DENSITY 31"), "DENSITY does not take 31", 21, 3, sOne},
    {"ATextThatNeverEnds", label("TEXT 1,1,\"3\",0,1,1,\"open"),
     "TEXT has a quotation mark that is never closed", 21, 3, sOne},
    {"AStoredFileThatTheStreamCutsOff", "DOWNLOAD \"LOGO.BMP\",10,abc",
     "DOWNLOAD is cut short: 3 of 10 bytes are there", 0, 1, sNone},
    {"ATypeOfBarcodeThatIsNone", label("BARCODE 1,1,\"ABC\",5,0,0,1,2,\"A\""),
     "BARCODE: there is no type \"ABC\"", 21, 3, sOne},
    {"AQrLevelThatIsNone", label("QRCODE 1,1,X,1,A,0,\"A\""),
     "QRCODE: the level is L, M, Q or H, not \"X\"", 21, 3, sOne},
    {"TextBehindTheClosingMark", label("QRCODE 1,1,L,1,A,0,\"A\"B"),
     "QRCODE: there is text behind the closing quotation mark: \"B\"", 21, 3, sOne},
    {"ALineLongerThanAnyCommand", "TEXT " + std::string(70000, '1') + "\r\n",
     "a line that is longer than any command is skipped", 0, 1, sNone},
    {"ALabelOfAbsurdSize", "SIZE 5000 mm,5000 mm\r\n",
     "a label of this size is too large to draw: SIZE 5000 mm,5000 mm", 0, 1, sNone},
};

class Check : public testing::TestWithParam<Fault> {};

TEST_P(Check, IsComplainedOfWithItsLineItsOffsetAndStatusOne) {
    const Fault& fault = GetParam();
    const FilterResult result = runCheck(fault.stream);
    EXPECT_EQ(result.standardOutput, "standard input: line " + std::to_string(fault.line) +
                                         ", byte " + std::to_string(fault.offset) + ": " +
                                         fault.complaint + "\nstandard input: " + fault.labels +
                                         "\n");
    EXPECT_EQ(result.standardError, "");
    EXPECT_EQ(result.status, 1);
}

std::string nameOf(const testing::TestParamInfo<Fault>& fault) {
    return fault.param.name;
}

INSTANTIATE_TEST_SUITE_P(Faults, Check, testing::ValuesIn(sFaults), nameOf);

TEST(CheckOfSeveralFaults, ComplainsOfEachInTheOrderOfTheStream) {
    const TemporaryFolder folder;
    folder.write("bad.tspl", label("SPIN\r\nBAR 1\r\nPRINT 0"));
    const FilterResult result = runPreview(folder, {"--check", "bad.tspl"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.standardOutput,
              "bad.tspl: line 3, byte 21: unknown command: SPIN\n"
              "bad.tspl: line 4, byte 27: BAR takes 4 arguments, not 1\n"
              "bad.tspl: line 5, byte 34: PRINT 0 prints nothing\n"
              "bad.tspl: label 1: 16 x 8 dots at 203 dpi (assumed)\n"
              "bad.tspl: 1 label, 3 complaints\n");
}

TEST(CheckOfSeveralLabels, CountsWhatIsWrongWithEach) {
    std::string stream;
    for (int i = 0; i < 20; ++i) {
        stream += label("BAR 14,6,4,3");
    }
    EXPECT_EQ(runCheck(stream).standardOutput,
              "standard input: line 3, byte 21: 8 dots lie outside the label and are cut off\n"
              "standard input: and 19 more labels: 8 dots lie outside the label and are cut off\n"
              "standard input: 20 labels, 20 complaints\n");
}

TEST(CheckOfABlankLabel, ComplainsOfIt) {
    const FilterResult result = runCheck("SIZE 2 mm,1 mm\nCLS\nPRINT 1\n");
    EXPECT_EQ(result.standardOutput,
              "standard input: line 3, byte 19: the label is blank\n"
              "standard input: 1 label, 1 complaint\n");
    EXPECT_EQ(result.status, 1);
}

TEST(CheckOfAStreamThatPrintsNothing, SaysSo) {
    for (const std::string stream :
         {"", "\n\n\n", "\x1b!S\x1b!?~!T\r\n", "SIZE 4,6\nBAR 1,1,9,9\n"}) {
        const FilterResult result = runCheck(stream);
        EXPECT_EQ(result.standardOutput,
                  "standard input: no label: nothing is printed without PRINT\n")
            << stream;
        EXPECT_EQ(result.standardError, "") << stream;
        EXPECT_EQ(result.status, 0) << stream;
    }
}

TEST(CheckWithAListing, ListsAndGivesStatusOneForComplaints) {
    const TemporaryFolder folder;
    folder.write("bad.tspl", label("SPIN"));
    folder.write("good.tspl", label("CLS"));
    for (const std::string listing : {"--list", "--json"}) {
        const FilterResult bad = runPreview(folder, {"--check", listing, "bad.tspl"});
        const FilterResult good = runPreview(folder, {"--check", listing, "good.tspl"});
        EXPECT_EQ(bad.status, 1) << listing;
        EXPECT_EQ(good.status, 0) << listing;
        for (const std::string& file : {std::string("bad.tspl"), std::string("good.tspl")}) {
            const FilterResult alone = runPreview(folder, {listing, file});
            const FilterResult& both = file == "bad.tspl" ? bad : good;
            EXPECT_EQ(both.standardOutput, alone.standardOutput) << listing;
            EXPECT_EQ(both.standardError, alone.standardError) << listing;
            EXPECT_EQ(alone.status, 0) << listing;
        }
    }
}

TEST(CheckOfACleanStream, CountsItsLabelsAndGivesStatusZero) {
    const std::string streams[] = {
        smallLabel(letterBitmap),
        // A font that is only alike is nothing to complain of.
        "SIZE 4,6\nTEXT 1,1,\"3\",0,1,1,\"a, b\"\nPRINT 1\n",
        // What is not drawn is nothing to complain of.
        label("TLC39 1,1,0,\"123456\""),
        "SIZE 100 mm,50 mm\nBARCODE 8,8,\"128\",50,1,0,2,2,\"A\"\nQRCODE 8,200,L,4,A,0,\"x\"\n"
        "DMATRIX 200,8,100,100,x4,\"x\"\nPRINT 1\n",
        label("GAP 2 mm,0 mm\r\nGAP 0,0\r\nBLINE 2 mm,0 mm\r\nOFFSET 0.0 mm\r\nREFERENCE 0,0\r\n"
              "SHIFT 1\r\nDIRECTION 1\r\nDIRECTION 0,1\r\nSPEED 4\r\nSPEED 1.5\r\nDENSITY 0\r\n"
              "DENSITY 15\r\nSET RIBBON OFF\r\nSET TEAR ON\r\nSET PEEL OFF\r\nSET CUTTER OFF\r\n"
              "BAR 1,1,2,2\r\nBOX 1,1,6,6,1\r\nERASE 1,1,2,2\r\nREVERSE 1,1,2,2\r\n"
              "BITMAP 0,0,1,1,1,\xff\r\nBITMAP 0,0,1,1,2,\xff\r\nFEED 80\r\nFORMFEED\r\nHOME\r\n"
              "EOP\r\nCODEPAGE 850\r\nCOUNTRY 001\r\nSOUND 1,100\r\nSELFTEST"),
        "SIZE 16 dot,8 dot\nCLS\nBAR 0,0,1,1\nPRINT 1\n",
        "SIZE 4,6\nCLS\nBAR 0,0,1,1\nPRINT 1\n",
        "SIZE 4 inch,6 inch\rCLS\rBAR 0,0,1,1\rPRINT 1\r",
        "size 2 mm,1 mm\ncls\nbar 0,0,1,1\nprint 1,1",
    };
    for (const std::string& stream : streams) {
        const FilterResult result = runCheck(stream);
        EXPECT_EQ(result.standardOutput, "standard input: 1 label, no complaints\n") << stream;
        EXPECT_EQ(result.standardError, "") << stream;
        EXPECT_EQ(result.status, 0) << stream;
    }
}

}  // namespace
