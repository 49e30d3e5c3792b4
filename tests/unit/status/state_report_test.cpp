// What people and the scheduler are told about the printer.
#include "status/state_report.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace status {
namespace {

using Lines = std::vector<std::string>;

// What is said when a printer shows these states, one after the other, and what at the end.
struct Said {
    Lines lines;
    Lines atTheEnd;
};

Said saidOf(const std::vector<unsigned>& states, const std::string& standing = "none") {
    Lines lines;
    Said said;
    {
        StateReport report([&lines](const std::string& line) { lines.push_back(line); }, standing);
        for (const unsigned bits : states) {
            report.show(StatusByte(static_cast<std::uint8_t>(bits)));
        }
        said.lines = lines;
        lines.clear();
    }
    said.atTheEnd = lines;
    return said;
}

TEST(StateReport, OfAReadyPrinterSaysNothing) {
    EXPECT_EQ(saidOf({0, 0x20, 0}).lines, Lines{});
    EXPECT_EQ(saidOf({0, 0x20, 0}).atTheEnd, Lines{});
}

TEST(StateReport, SetsAReasonWithALineForPeopleAndClearsItAgain) {
    EXPECT_EQ(saidOf({4, 4, 0}).lines,
              (Lines{"STATE: +media-empty-error", "ERROR: The printer is out of labels.",
                     "STATE: -media-empty-error", "INFO: The printer goes on."}));
}

TEST(StateReport, OfAPauseIsNoError) {
    EXPECT_EQ(saidOf({0x10}).lines, (Lines{"STATE: +paused", "INFO: The printer is paused."}));
}

TEST(StateReport, ChangesOnlyWhatIsDifferent) {
    EXPECT_EQ(saidOf({0x05, 0x0c}).lines,
              (Lines{"STATE: +media-empty-error,cover-open-error",
                     "ERROR: The printer is out of labels, and has its head open.",
                     "STATE: -cover-open-error", "STATE: +marker-supply-empty-error",
                     "ERROR: The printer is out of labels, and is out of ribbon."}));
}

TEST(StateReport, ClearsAtTheEndWhatStands) {
    EXPECT_EQ(saidOf({0x06}).atTheEnd, Lines{"STATE: -media-empty-error,media-jam-error"});
}

TEST(StateReport, ClearsWhatAnEarlierJobHasLeft) {
    const std::string standing = "connecting-to-device,media-empty-error,other-warning";
    EXPECT_EQ(saidOf({}, standing).atTheEnd, Lines{"STATE: -media-empty-error"});
    EXPECT_EQ(saidOf({0}, standing).lines, Lines{"STATE: -media-empty-error"});
}

TEST(StateReport, LeavesAQueueStoppedThatSomebodyElseHasStopped) {
    EXPECT_EQ(saidOf({0}, "paused").lines, Lines{});
    EXPECT_EQ(saidOf({0}, "paused").atTheEnd, Lines{});
}

TEST(StateReport, DoesNotSetAgainWhatStands) {
    EXPECT_EQ(saidOf({4}, "media-empty-error").lines,
              Lines{"ERROR: The printer is out of labels."});
}

}  // namespace
}  // namespace status
