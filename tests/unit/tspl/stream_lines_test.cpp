// How a stream is cut into lines.
#include "tests/unit/tspl/test_support.h"

namespace tspl {
namespace {

TEST(StreamParser, TellsNothingOfAnEmptyStream) {
    EXPECT_EQ(eventsOf(""), Texts{});
}

TEST(StreamParser, EndsALineAtALineFeedACarriageReturnOrBoth) {
    const Texts expected = {"command 0 CLS", "command 4 HOME"};
    EXPECT_EQ(eventsOf("CLS\nHOME\n"), expected);
    EXPECT_EQ(eventsOf("CLS\rHOME\r"), expected);
    EXPECT_EQ(eventsOf("CLS\r\nHOME\r\n"), (Texts{"command 0 CLS", "command 5 HOME"}));
}

TEST(StreamParser, TakesALineFeedAfterACarriageReturnAsOneLineEnd) {
    EXPECT_EQ(eventsOf("A\r\nB"), (Texts{"command 0 A", "command 3 B"}));
    EXPECT_EQ(eventsOf("\r\n"), Texts{"blank 0 1"});
    EXPECT_EQ(eventsOf("A\r\n\r\nB"), (Texts{"command 0 A", "blank 3 1", "command 5 B"}));
}

TEST(StreamParser, TakesTheOtherOrderAsTwoLineEnds) {
    EXPECT_EQ(eventsOf("A\n\rB"), (Texts{"command 0 A", "blank 2 1", "command 3 B"}));
    EXPECT_EQ(eventsOf("A\r\r\nB"), (Texts{"command 0 A", "blank 2 1", "command 4 B"}));
}

TEST(StreamParser, TellsALastLineWithoutALineEnd) {
    EXPECT_EQ(eventsOf("CLS\nHOME"), (Texts{"command 0 CLS", "command 4 HOME"}));
    EXPECT_EQ(eventsOf("A"), Texts{"command 0 A"});
}

TEST(StreamParser, CountsARunOfBlankLines) {
    EXPECT_EQ(eventsOf(std::string(64, '\n') + "CLS\n"), (Texts{"blank 0 64", "command 64 CLS"}));
    EXPECT_EQ(eventsOf("CLS\n\n\n\nHOME\n\n"),
              (Texts{"command 0 CLS", "blank 4 3", "command 7 HOME", "blank 12 1"}));
}

TEST(StreamParser, CountsBlankLinesAtTheEnd) {
    EXPECT_EQ(eventsOf("\n\n"), Texts{"blank 0 2"});
    EXPECT_EQ(eventsOf("\r\n\r\n\r\n"), Texts{"blank 0 3"});
}

TEST(StreamParser, CountsLinesOfBlanksAndTabsAsBlank) {
    EXPECT_EQ(eventsOf("\n  \n\t\nCLS"), (Texts{"blank 0 3", "command 6 CLS"}));
}

// It starts with its first blank, not where it ends.
TEST(StreamParser, TellsWhereALineOfBlanksStarts) {
    EXPECT_EQ(eventsOf("  \nCLS"), (Texts{"blank 0 1", "command 3 CLS"}));
}

TEST(StreamParser, LeavesOutAnUnendedLineOfBlanks) {
    EXPECT_EQ(eventsOf("CLS\n  "), Texts{"command 0 CLS"});
}

TEST(StreamParser, StartsACommandAtItsFirstByteThatIsNoBlank) {
    EXPECT_EQ(eventsOf(" \tCLS \n  HOME"), (Texts{"command 2 CLS ", "command 9 HOME"}));
}

TEST(StreamParser, KeepsTheCaseOfACommand) {
    EXPECT_EQ(eventsOf("cls\nPrint 1\n"), (Texts{"command 0 cls", "command 4 Print 1"}));
}

TEST(StreamParser, TakesEveryOtherByteAsPartOfALine) {
    std::string line;
    for (int byte = 0; byte < 256; ++byte) {
        if (byte != '\n' && byte != '\r' && byte != ' ' && byte != '\t') {
            line += static_cast<char>(byte);
        }
    }
    EXPECT_EQ(eventsOf("x\n" + line + "\ny"),
              (Texts{"command 0 x", "command 2 " + line, "command 255 y"}));
}

TEST(StreamParser, TellsAPageAsAPrinterGetsIt) {
    EXPECT_EQ(eventsOf("\n\nSIZE 4,6\r\nCLS\r\nBITMAP 0,0,1,2,0,ab\r\nPRINT 1,1\r\n"),
              (Texts{"blank 0 2", "command 2 SIZE 4,6", "command 12 CLS", "bitmap 17 0,0,1,2,0",
                     "data 2 ab", "command 38 PRINT 1,1"}));
}

std::string longest() {
    return std::string(StreamParser::longestLine, 'x');
}

TEST(StreamParser, TakesTheLongestLine) {
    EXPECT_EQ(eventsOf(longest() + "\nCLS"),
              (Texts{"command 0 " + longest(), "command 65537 CLS"}));
    EXPECT_EQ(eventsOf(longest()), Texts{"command 0 " + longest()});
}

TEST(StreamParser, LeavesALongerLineOut) {
    EXPECT_EQ(eventsOf(longest() + "y\nCLS"), (Texts{"long 0", "command 65538 CLS"}));
    EXPECT_EQ(eventsOf(longest() + longest() + "\r\nCLS"), (Texts{"long 0", "command 131074 CLS"}));
    EXPECT_EQ(eventsOf(longest() + "y"), Texts{"long 0"});
}

TEST(StreamParser, TellsBlankLinesBeforeALineThatIsTooLong) {
    EXPECT_EQ(eventsOf("\n\n  " + longest() + "y\n\nCLS"),
              (Texts{"blank 0 2", "long 4", "blank 65542 1", "command 65543 CLS"}));
}

TEST(StreamParser, ReadsNoHeadInTheRestOfALineThatIsTooLong) {
    EXPECT_EQ(eventsOf(longest() + "y BITMAP 0,0,1,9,0,\nCLS"),
              (Texts{"long 0", "command 65556 CLS"}));
    EXPECT_EQ(eventsOf(longest() + "y\x1b!S\nCLS"), (Texts{"long 0", "command 65541 CLS"}));
}

TEST(StreamParser, CountsTheBytesItTakes) {
    RecordingHandler handler;
    StreamParser parser(handler);
    EXPECT_EQ(parser.offset(), 0U);
    parser.feed(bytesOf("\n\nCLS\r\n"));
    EXPECT_EQ(parser.offset(), 7U);
    parser.feed({});
    EXPECT_EQ(parser.offset(), 7U);
    parser.feed(bytesOf("BITMAP 0,0,9,9,0,abc"));
    EXPECT_EQ(parser.offset(), 27U);
    parser.finish();
    EXPECT_EQ(parser.offset(), 27U);
}

}  // namespace
}  // namespace tspl
