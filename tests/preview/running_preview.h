#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

#include "tests/support/temporary_folder.h"

/// A previewer that is under way, with pipes for its standard streams.
class RunningPreview {
public:
    /// Starts it with `folder` as its current folder.
    RunningPreview(const TemporaryFolder& folder, const std::vector<std::string>& arguments);
    RunningPreview(const RunningPreview&) = delete;
    RunningPreview& operator=(const RunningPreview&) = delete;
    ~RunningPreview();

    /// Writes to its standard input, and ends that.
    void write(const std::string& text) const;
    void endInput();

    /// What it says from now on until these words have come, with them; less when it ends before.
    [[nodiscard]] std::string output(const std::string& lastWords) const;
    [[nodiscard]] std::string errors(const std::string& lastWords) const;

    void sendSignal(int signal) const;
    /// Waits for its end: its exit status, or minus the signal that ended it.
    int status();

private:
    pid_t process_ = -1;
    int input_ = -1;
    int output_ = -1;
    int errors_ = -1;
};
