// What there is in a stream, in numbers and in words.
#include "preview/stream_tally.h"

#include "tests/unit/tspl/test_support.h"

namespace preview {
namespace {

std::string summed(std::string_view stream) {
    StreamTally tally;
    tspl::obeyStream(stream, tally);
    return describe(tally);
}

TEST(StreamTally, CountsLabelsAndComplaints) {
    EXPECT_EQ(summed("SIZE 1,1\nBAR 0,0,9,9\nPRINT 1\nPRINT 1\n"), "2 labels, no complaints");
    EXPECT_EQ(summed("SIZE 1,1\nBAR 0,0,9,9\nSPIN\nPRINT 1\n"), "1 label, 1 complaint");
    EXPECT_EQ(summed("SIZE 1,1\nBAR 0,0,9,9\nSPIN\nSPIN\nPRINT 9\n"), "1 label, 2 complaints");
}

TEST(StreamTally, CountsLabelsThatCannotBeDrawn) {
    EXPECT_EQ(summed("PRINT 1\n"), "1 label, 1 complaint");
}

TEST(StreamTally, CountsNoLabelForAPrintThatPrintsNothing) {
    EXPECT_EQ(summed("SIZE 1,1\nPRINT 0\n"),
              "no label: nothing is printed without PRINT; 1 complaint");
}

TEST(StreamTally, TellsThatNothingIsPrintedWithoutPrint) {
    EXPECT_EQ(summed("SIZE 1,1\nBAR 0,0,9,9\n"), "no label: nothing is printed without PRINT");
    EXPECT_EQ(summed(""), "no label: nothing is printed without PRINT");
}

TEST(StreamTally, DoesNotTakeRemarksForComplaints) {
    StreamTally tally;
    tspl::obeyStream("TLC39 1,20,3,4,5\n", tally);
    EXPECT_EQ(tally.complaints(), 0U);
    EXPECT_EQ(tally.remarks(), 1U);
}

}  // namespace
}  // namespace preview
