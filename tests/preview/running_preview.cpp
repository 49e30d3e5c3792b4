#include "tests/preview/running_preview.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <csignal>
#include <stdexcept>

#include "tests/preview/preview_run.h"

namespace {

struct Pipe {
    Pipe() {
        int ends[2];
        if (pipe2(ends, O_CLOEXEC) != 0) {
            throw std::runtime_error("no pipe for the test");
        }
        reading = ends[0];
        writing = ends[1];
    }
    int reading = -1;
    int writing = -1;
};

// Reads byte by byte, so that nothing behind the words is taken.
std::string readUntil(int descriptor, const std::string& lastWords) {
    std::string text;
    char byte = 0;
    while (!text.ends_with(lastWords) && read(descriptor, &byte, 1) == 1) {
        text += byte;
    }
    return text;
}

}  // namespace

RunningPreview::RunningPreview(const TemporaryFolder& folder,
                               const std::vector<std::string>& arguments) {
    const Pipe input;
    const Pipe output;
    const Pipe errors;
    // The alarm of the process ends whoever waits for words that never come.
    process_ = startFilter(previewCall(folder, arguments),
                           {input.reading, output.writing, errors.writing});
    for (const int descriptor : {input.reading, output.writing, errors.writing}) {
        close(descriptor);
    }
    input_ = input.writing;
    output_ = output.reading;
    errors_ = errors.reading;
}

RunningPreview::~RunningPreview() {
    if (process_ > 0) {
        kill(process_, SIGKILL);
        waitForEnd(process_);
    }
    endInput();
    close(output_);
    close(errors_);
}

void RunningPreview::write(const std::string& text) const {
    EXPECT_EQ(::write(input_, text.data(), text.size()), static_cast<ssize_t>(text.size()));
}

void RunningPreview::endInput() {
    if (input_ >= 0) {
        close(input_);
        input_ = -1;
    }
}

std::string RunningPreview::output(const std::string& lastWords) const {
    return readUntil(output_, lastWords);
}

std::string RunningPreview::errors(const std::string& lastWords) const {
    return readUntil(errors_, lastWords);
}

void RunningPreview::sendSignal(int signal) const {
    kill(process_, signal);
}

int RunningPreview::status() {
    const int status = waitForEnd(process_);
    process_ = -1;
    return status;
}
