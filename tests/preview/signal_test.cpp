#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>

#include "tests/preview/preview_run.h"

namespace {

using Names = std::set<std::string>;

int opened(const std::string& name, int mode) {
    const int descriptor = open(name.c_str(), mode | O_CLOEXEC);
    if (descriptor < 0) {
        throw std::runtime_error("cannot open " + name);
    }
    return descriptor;
}

// Starts a call on a file of the folder, without a word on standard output.
pid_t startOn(const std::string& stream, FilterCall call) {
    const Streams streams{opened(stream, O_RDONLY), opened("/dev/null", O_WRONLY),
                          opened("/dev/null", O_WRONLY)};
    const pid_t process = startFilter(call, streams);
    for (const int descriptor : {streams.input, streams.output, streams.errors}) {
        close(descriptor);
    }
    return process;
}

// A picture that fills any pipe, under whose unfinished name a pipe stands: when the test has
// opened it the picture is under way, and stays so.
int statusAfter(int signal, const std::string& shellPrefix = "") {
    const TemporaryFolder folder;
    const TemporaryFolder streams;
    const std::string stream = streams.write("stream", noiseLabel(2000, 2000));
    const std::string part = folder.path("label-1.png.part");
    EXPECT_EQ(mkfifo(part.c_str(), 0600), 0);
    const pid_t process = startOn(stream, shellCall(folder, shellPrefix + "exec \"$PREVIEW\""));
    const int pipe = opened(part, O_RDONLY);
    kill(process, signal);
    if (!shellPrefix.empty()) {
        // Ignored: what is written can be read to its end.
        char bytes[4096];
        while (read(pipe, bytes, sizeof bytes) > 0) {
        }
    }
    const int status = waitForEnd(process);
    close(pipe);
    EXPECT_EQ(folder.names(), shellPrefix.empty() ? Names{} : Names{"label-1.png"});
    return status;
}

TEST(PreviewSignal, EndsTheProgramAsUsualAndLeavesNoUnfinishedPicture) {
    for (const int signal : {SIGHUP, SIGINT, SIGQUIT, SIGTERM}) {
        EXPECT_EQ(statusAfter(signal), -signal);
    }
}

TEST(PreviewSignal, ThatTheStarterHasIgnoredStaysIgnored) {
    EXPECT_EQ(statusAfter(SIGHUP, "trap '' HUP; "), 0);
}

TEST(PreviewSignal, OfAFileThatGrowsTooLargeLeavesNoUnfinishedPicture) {
    const TemporaryFolder folder;
    FilterCall call = previewCall(folder, {}, noiseLabel(2000, 2000));
    call.fileSize = 100000;
    EXPECT_EQ(runFilter(call).status, -SIGXFSZ);
    EXPECT_EQ(folder.names(), Names{});
}

}  // namespace
