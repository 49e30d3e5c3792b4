#include <gtest/gtest.h>

#include "tests/preview/preview_run.h"
#include "tests/preview/terminal_run.h"

namespace {

// A stream that takes its time: one label, then a second of nothing, then another one.
const std::string slowStream = "{ cat label; sleep 1; cat label; } | ";

TEST(Progress, OfASlowStreamIsShownOnATerminalAndRemovedAtTheEnd) {
    const TemporaryFolder folder;
    folder.write("label", smallLabel(letterBitmap));
    const TerminalRun run = runOnTerminal(folder, slowStream + "\"$PREVIEW\" --list >list");
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.shown.find("\rtsplpreview: "), 0U) << run.shown;
    EXPECT_NE(run.shown.find(" MB, 2 labels"), std::string::npos) << run.shown;
    // Back to the first column, the line is cleared.
    const std::string removal = "\r\x1b[K";
    ASSERT_GE(run.shown.size(), removal.size());
    EXPECT_EQ(run.shown.substr(run.shown.size() - removal.size()), removal);
    EXPECT_EQ(run.shown.find('\n'), std::string::npos) << run.shown;
    EXPECT_EQ(readFile(folder.path("list")).find("tsplpreview"), std::string::npos);
}

TEST(Progress, MakesWayForWhatIsSaid) {
    const TemporaryFolder folder;
    folder.write("label", smallLabel(letterBitmap));
    const TerminalRun run = runOnTerminal(
        folder, "{ cat label; sleep 1; cat label; sleep 1; echo SPIN; } | \"$PREVIEW\" --check");
    EXPECT_EQ(run.status, 1);
    EXPECT_NE(run.shown.find("\r\x1b[Kstandard input: line "), std::string::npos) << run.shown;
}

TEST(Progress, OfAShortStreamIsNotShown) {
    const TemporaryFolder folder;
    folder.write("label", smallLabel(letterBitmap));
    const TerminalRun run = runOnTerminal(folder, "\"$PREVIEW\" --check label");
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.shown, "label: 1 label, no complaints\r\n");
}

TEST(Progress, IsNotWrittenToAPipeOrAFile) {
    const TemporaryFolder folder;
    folder.write("label", smallLabel(letterBitmap));
    const FilterResult piped =
        runFilter(shellCall(folder, slowStream + "\"$PREVIEW\" --check 2>&1 | cat"));
    EXPECT_EQ(piped.standardOutput, "standard input: 2 labels, no complaints\n");
    const FilterResult written = runFilter(shellCall(folder, slowStream + "\"$PREVIEW\" --check"));
    EXPECT_EQ(written.status, 0);
    EXPECT_EQ(written.standardError, "");
}

}  // namespace
