// Lines of findings, from 1.
#include "tests/unit/tspl/test_support.h"

namespace tspl {
namespace {

class LineSink : public Sink {
public:
    std::vector<std::uint64_t> lines;

    void onEntry(const Entry& /*entry*/) override {}
    void onFinding(const Finding& finding) override { lines.push_back(finding.line); }
    void onLabel(const PrintedLabel& /*label*/) override {}
};

std::vector<std::uint64_t> linesOf(std::string_view stream) {
    LineSink sink;
    obeyStream(stream, sink);
    return sink.lines;
}

using Lines = std::vector<std::uint64_t>;

TEST(FindingLine, IsThatOfTheCommand) {
    EXPECT_EQ(linesOf("WHAT\nCLS\nWHAT\n"), (Lines{1, 3}));
    EXPECT_EQ(linesOf("\n\n\nWHAT"), Lines{4});
    EXPECT_EQ(linesOf("CLS\r\nWHAT\r\nCLS\rWHAT"), (Lines{2, 4}));
}

TEST(FindingLine, CountsNoLinesInTheDataOfABitmap) {
    EXPECT_EQ(linesOf("CLS\nBITMAP 0,0,1,3,0,\n\n\n\nWHAT\n"), Lines{3});
    EXPECT_EQ(linesOf("BITMAP 0,0,1,1,0,aWHAT"), Lines{1});
}

TEST(FindingLine, IsThatOfABitmapThatOverhangsAndNotOfPrint) {
    EXPECT_EQ(linesOf("SIZE 8 dot,8 dot\nBITMAP 0,0,2,1,0,\xFF\xFF\nCLS\nBAR 0,0,1,1\nPRINT 1\n"),
              Lines{});
    EXPECT_EQ(linesOf("SIZE 8 dot,8 dot\nCLS\nBITMAP 0,0,2,1,0,\x01\xFF\n\nPRINT 1\n"), Lines{3});
}

TEST(FindingLine, CountsBehindALongLine) {
    EXPECT_EQ(linesOf("CLS\n" + std::string(70'000, 'x') + "\nWHAT\n"), (Lines{2, 3}));
}

}  // namespace
}  // namespace tspl
