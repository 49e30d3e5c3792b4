// Findings, one per line.
#include "preview/findings_listing.h"

#include <algorithm>
#include <sstream>

#include "tests/unit/tspl/test_support.h"

namespace preview {
namespace {

std::string listed(std::string_view stream, bool withRemarks, bool withSizes = false) {
    std::ostringstream out;
    FindingsListing listing(out, "label.tspl", {withRemarks, withSizes});
    tspl::obeyStream(stream, listing);
    listing.writeRepeats();
    return out.str();
}

TEST(Findings, StandWithTheirSourceTheirLineAndTheirOffset) {
    EXPECT_EQ(listed("WHAT\nTLC39 1,20,3,4,5\nPRINT 0\n", true),
              "label.tspl: line 1, byte 0: unknown command: WHAT\n"
              "label.tspl: line 2, byte 5: TLC39 is not drawn\n"
              "label.tspl: line 3, byte 22: PRINT 0 prints nothing\n");
}

TEST(Findings, LeaveRemarksOutOnRequest) {
    EXPECT_EQ(listed("WHAT\nTLC39 1,20,3,4,5\n", false),
              "label.tspl: line 1, byte 0: unknown command: WHAT\n");
    EXPECT_EQ(listed("TLC39 1,20,3,4,5\nTLC39 1,20,3,4,5\n", false), "");
}

TEST(Findings, AreNoneForALabelThatIsFine) {
    EXPECT_EQ(listed("SIZE 1,1\nBAR 0,0,9,9\nPRINT 1\n", true), "");
}

TEST(Findings, OfOtherLabelsAreCounted) {
    EXPECT_EQ(listed("SIZE 1,1\nPRINT 1\nPRINT 1\nPRINT 1\n", false),
              "label.tspl: line 2, byte 9: the label is blank\n"
              "label.tspl: and 2 more labels: the label is blank\n");
    EXPECT_EQ(listed("SIZE 1,1\nPRINT 1\nPRINT 1\n", false),
              "label.tspl: line 2, byte 9: the label is blank\n"
              "label.tspl: and 1 more label: the label is blank\n");
}

TEST(Findings, OfOneLabelAreCounted) {
    EXPECT_EQ(listed("SPIN\nSPIN\n", false),
              "label.tspl: line 1, byte 0: unknown command: SPIN\n"
              "label.tspl: and 1 more time: unknown command: SPIN\n");
    // Twice on the first label and once on the second one.
    EXPECT_EQ(listed("SIZE 1,1\nBAR 0,0,9,9\nSPIN\nSPIN\nPRINT 1\nSPIN\nPRINT 1\n", false),
              "label.tspl: line 3, byte 21: unknown command: SPIN\n"
              "label.tspl: and 2 more times: unknown command: SPIN\n");
}

// As where a serial number grows.
TEST(Findings, OfOtherLabelsThatDifferInNumbersAreCounted) {
    EXPECT_EQ(listed("SIZE 1,1\nFEED x9\nFEED x10\nBAR 0,0,9,9\nPRINT 1\n"
                     "FEED x11\nPRINT 1\nFEED x12\nFEED x13\nFEED x14\nPRINT 1\n",
                     false),
              "label.tspl: line 2, byte 9: FEED does not take \"x9\"\n"
              "label.tspl: line 3, byte 17: FEED does not take \"x10\"\n"
              "label.tspl: line 10, byte 81: FEED does not take \"x14\"\n"
              "label.tspl: and 2 more labels, with other numbers: FEED does not take \"x9\"\n"
              "label.tspl: and 1 more label, with other numbers: FEED does not take \"x10\"\n");
}

TEST(Findings, OfOtherLabelsInTheSameWordsAreNotTakenForOthers) {
    EXPECT_EQ(listed("SIZE 1,1\nBAR 0,0,9,9\nFEED x1\nFEED x2\nPRINT 1\nFEED x2\nPRINT 1\n"
                     "FEED x2\nFEED x1\nPRINT 1\n",
                     false),
              "label.tspl: line 3, byte 21: FEED does not take \"x1\"\n"
              "label.tspl: line 4, byte 29: FEED does not take \"x2\"\n"
              "label.tspl: and 1 more label: FEED does not take \"x1\"\n"
              "label.tspl: and 2 more labels: FEED does not take \"x2\"\n");
    EXPECT_EQ(listed("SIZE 1,1\nBAR 0,0,9,9\nFEED 1a\nPRINT 1\nFEED #a\nPRINT 1\n", false),
              "label.tspl: line 3, byte 21: FEED does not take \"1a\"\n"
              "label.tspl: line 5, byte 37: FEED does not take \"#a\"\n");
}

TEST(Findings, OfOneLabelThatDifferInNumbersAreToldApart) {
    EXPECT_EQ(listed("FEED x1\nFEED x2\nFEED x1\n", false),
              "label.tspl: line 1, byte 0: FEED does not take \"x1\"\n"
              "label.tspl: line 2, byte 8: FEED does not take \"x2\"\n"
              "label.tspl: and 1 more time: FEED does not take \"x1\"\n");
}

TEST(Findings, AreCountedInTheOrderInWhichTheyWereFoundFirst) {
    EXPECT_EQ(listed("SPIN\nTURN\nTURN\nSPIN\n", false),
              "label.tspl: line 1, byte 0: unknown command: SPIN\n"
              "label.tspl: line 2, byte 5: unknown command: TURN\n"
              "label.tspl: and 1 more time: unknown command: SPIN\n"
              "label.tspl: and 1 more time: unknown command: TURN\n");
}

TEST(Findings, OfALabelAreFollowedByItsSizeAndWhyItIsThat) {
    EXPECT_EQ(listed("SIZE 1,1\nBAR 0,0,204,1\nPRINT 1\nPRINT 1\n", false, true),
              "label.tspl: line 2, byte 9: 1 dot lies outside the label and is cut off\n"
              "label.tspl: label 1: 203 x 203 dots at 203 dpi (assumed)\n"
              "label.tspl: and 1 more label: 1 dot lies outside the label and is cut off\n");
    EXPECT_EQ(listed("SIZE 1,1\nBAR 0,0,9,1\nPRINT 1\nSIZE 1,2\nSPIN\nBAR 0,0,9,1\nPRINT 1\n",
                     false, true),
              "label.tspl: line 5, byte 38: unknown command: SPIN\n"
              "label.tspl: label 2: 203 x 406 dots at 203 dpi (assumed)\n");
}

TEST(Findings, OfALabelThatCannotBeDrawnAreOfThatLabel) {
    EXPECT_EQ(listed("PRINT 1\nPRINT 1\n", false),
              "label.tspl: line 1, byte 0: the label has no size that can be drawn\n"
              "label.tspl: and 1 more label: the label has no size that can be drawn\n");
}

// A thousand texts are kept.
TEST(Findings, OfMoreKindsThanAreKeptAreWrittenEachTime) {
    std::string stream;
    for (int round = 0; round < 2; ++round) {
        for (int i = 0; i < 1002; ++i) {
            stream += "FEED X" + std::to_string(i) + "\n";
        }
    }
    const std::string text = listed(stream, false);
    const auto lines = std::count(text.begin(), text.end(), '\n');
    EXPECT_EQ(lines, 1002 + 2 + 1000);
    EXPECT_NE(text.find("line 2003, byte 19802: FEED does not take \"X1000\"\n"), std::string::npos)
        << text.substr(text.find("X1000"), 400);
    EXPECT_NE(text.find("and 1 more time: FEED does not take \"X999\"\n"), std::string::npos);
    EXPECT_EQ(text.find("and 1 more time: FEED does not take \"X1000\"\n"), std::string::npos);
}

TEST(Findings, StandOnLinesOfPrintableAsciiOnly) {
    std::string stream;
    for (int byte = 0; byte < 256; ++byte) {
        if (byte != '\n' && byte != '\r') {
            const std::string argument(1, static_cast<char>(byte));
            stream += "X" + argument + "\nFEED x" + argument + "\nSET " + argument +
                      "\nSET TEAR x" + argument + "\nSPEED x" + argument + "\nBITMAP " + argument +
                      "\nBOX 1,1,1,1,1 " + argument + "\n";
        }
    }
    const std::string text = listed(stream, true);
    EXPECT_GT(text.size(), stream.size());
    for (const char c : text) {
        EXPECT_TRUE((c >= ' ' && c <= '~') || c == '\n') << int{c};
    }
}

}  // namespace
}  // namespace preview
