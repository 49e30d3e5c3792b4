// Findings, one per line.
#include "preview/findings_listing.h"

#include <sstream>

#include "tests/unit/tspl/test_support.h"

namespace preview {
namespace {

class Findings : public testing::Test {
protected:
    std::string listed(std::string_view stream, bool withRemarks) {
        std::ostringstream out;
        FindingsListing listing(out, "label.tspl", withRemarks);
        tspl::obeyStream(stream, listing);
        hasComplaints_ = listing.hasComplaints();
        return out.str();
    }

    bool hasComplaints_ = false;
};

TEST_F(Findings, StandWithTheirSourceAndTheirOffset) {
    EXPECT_EQ(listed("WHAT\nTLC39 1,20,3,4,5\nPRINT 0\n", true),
              "label.tspl: byte 0: unknown command: WHAT\n"
              "label.tspl: byte 5: TLC39 is not drawn\n"
              "label.tspl: byte 22: PRINT 0 prints nothing\n");
    EXPECT_TRUE(hasComplaints_);
}

TEST_F(Findings, LeaveRemarksOutOnRequest) {
    EXPECT_EQ(listed("WHAT\nTLC39 1,20,3,4,5\n", false),
              "label.tspl: byte 0: unknown command: WHAT\n");
    EXPECT_TRUE(hasComplaints_);
}

TEST_F(Findings, AreNoComplaintsWhenTheyAreRemarks) {
    EXPECT_EQ(listed("TLC39 1,20,3,4,5\n", true), "label.tspl: byte 0: TLC39 is not drawn\n");
    EXPECT_FALSE(hasComplaints_);
    EXPECT_EQ(listed("TLC39 1,20,3,4,5\n", false), "");
    EXPECT_FALSE(hasComplaints_);
}

TEST_F(Findings, AreNoneForALabelThatIsFine) {
    EXPECT_EQ(listed("SIZE 1,1\nPRINT 1\n", true), "");
    EXPECT_FALSE(hasComplaints_);
}

TEST_F(Findings, StandOnLinesOfPrintableAsciiOnly) {
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
