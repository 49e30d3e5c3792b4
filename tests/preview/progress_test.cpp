#include <fcntl.h>
#include <gtest/gtest.h>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <stdexcept>

#include "tests/preview/preview_run.h"

namespace {

struct TerminalRun {
    std::string shown;
    int status = -1;
};

[[noreturn]] void startShell(const TemporaryFolder& folder, const std::string& script) {
    setenv("PREVIEW", KESTO_PREVIEWER, 1);
    alarm(60);
    if (chdir(folder.path("").c_str()) == 0) {
        execl("/bin/sh", "sh", "-c", script.c_str(), nullptr);
    }
    _exit(127);
}

// Runs a shell script in a folder with a terminal for its standard streams.
TerminalRun runOnTerminal(const TemporaryFolder& folder, const std::string& script) {
    int terminal = -1;
    const pid_t child = forkpty(&terminal, nullptr, nullptr, nullptr);
    if (child == -1) {
        throw std::runtime_error("no terminal for the test");
    }
    if (child == 0) {
        startShell(folder, script);
    }
    TerminalRun run;
    char bytes[4096];
    // Reading fails when the last process on the terminal is gone.
    for (ssize_t count = 0; (count = read(terminal, bytes, sizeof bytes)) > 0;) {
        run.shown.append(bytes, static_cast<std::size_t>(count));
    }
    close(terminal);
    int status = 0;
    waitpid(child, &status, 0);
    run.status = WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
    return run;
}

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
    EXPECT_NE(run.shown.find("\r\x1b[Kstandard input: byte "), std::string::npos) << run.shown;
}

TEST(Progress, OfAShortStreamIsNotShown) {
    const TemporaryFolder folder;
    folder.write("label", smallLabel(letterBitmap));
    const TerminalRun run = runOnTerminal(folder, "\"$PREVIEW\" --check label");
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.shown, "");
}

TEST(Progress, IsNotWrittenToAPipeOrAFile) {
    const TemporaryFolder folder;
    folder.write("label", smallLabel(letterBitmap));
    const FilterResult piped =
        runFilter(shellCall(folder, slowStream + "\"$PREVIEW\" --check 2>&1 | cat"));
    EXPECT_EQ(piped.standardOutput, "");
    const FilterResult written = runFilter(shellCall(folder, slowStream + "\"$PREVIEW\" --check"));
    EXPECT_EQ(written.status, 0);
    EXPECT_EQ(written.standardError, "");
}

}  // namespace
