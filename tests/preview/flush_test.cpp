// What is known of a label is told when it is printed, however long the stream goes on.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <stdexcept>

#include "tests/preview/preview_run.h"

namespace {

struct Pipe {
    Pipe() {
        if (pipe2(ends.data(), O_CLOEXEC) != 0) {
            throw std::runtime_error("no pipe");
        }
    }
    std::array<int, 2> ends{};
};

// What the previewer says of a label before its standard input ends; its end has to follow.
std::string saidOfALabel(const TemporaryFolder& folder, const std::vector<std::string>& arguments,
                         const std::string& lastWords) {
    const Pipe input;
    const Pipe output;
    const pid_t process =
        startFilter(previewCall(folder, arguments), {input.ends[0], output.ends[1], STDERR_FILENO});
    close(input.ends[0]);
    close(output.ends[1]);
    const std::string stream = smallLabel(letterBitmap) + "HOME\n";
    EXPECT_EQ(write(input.ends[1], stream.data(), stream.size()),
              static_cast<ssize_t>(stream.size()));
    std::string said;
    char byte = 0;
    // Ends with the alarm of the process when nothing comes.
    while (said.find(lastWords) == std::string::npos && read(output.ends[0], &byte, 1) == 1) {
        said += byte;
    }
    close(input.ends[1]);
    EXPECT_EQ(waitForEnd(process), 0);
    close(output.ends[0]);
    return said;
}

TEST(StandardOutput, IsSentOnWithEveryLabel) {
    const TemporaryFolder folder;
    EXPECT_EQ(saidOfALabel(folder, {}, "\n"),
              "label-1.png: 16 x 8 dots at 203 dpi, 16.4 % burnt\n");
    EXPECT_TRUE(saidOfALabel(folder, {"--list"}, "PRINT 1,1\n").ends_with("56  PRINT 1,1\n"));
    EXPECT_NE(saidOfALabel(folder, {"--json"}, "PRINT").find("\"type\":\"label\""),
              std::string::npos);
}

}  // namespace
