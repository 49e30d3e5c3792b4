#include "sizes/command/child_process.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>

#include "sizes/command/descriptor.h"
#include "sizes/command/failure.h"
#include "sizes/command/input_file.h"
#include "sizes/command/output_file.h"

namespace sizes {
namespace {

// A file in memory, for a pipe that nobody reads could fill up.
Descriptor fileWith(std::string_view text) {
    Descriptor file(memfd_create("input", MFD_CLOEXEC));
    if (file.get() < 0 || !writeAll(file.get(), text) || lseek(file.get(), 0, SEEK_SET) != 0) {
        throw FileFailure("memory", errno);
    }
    return file;
}

std::vector<char*> argumentsOf(const std::vector<std::string>& command) {
    std::vector<char*> arguments;
    arguments.reserve(command.size() + 1);
    for (const std::string& argument : command) {
        // posix_spawn does not write to them.
        arguments.push_back(const_cast<char*>(argument.c_str()));
    }
    arguments.push_back(nullptr);
    return arguments;
}

// The standard streams of a child.
class ChildStreams {
public:
    ChildStreams(int input, int output) {
        posix_spawn_file_actions_init(&actions_);
        posix_spawn_file_actions_adddup2(&actions_, input, STDIN_FILENO);
        posix_spawn_file_actions_adddup2(&actions_, output, STDOUT_FILENO);
        posix_spawn_file_actions_addopen(&actions_, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    }
    ~ChildStreams() { posix_spawn_file_actions_destroy(&actions_); }
    ChildStreams(const ChildStreams&) = delete;
    ChildStreams& operator=(const ChildStreams&) = delete;

    const posix_spawn_file_actions_t* get() const { return &actions_; }

private:
    posix_spawn_file_actions_t actions_{};
};

std::optional<pid_t> spawn(const std::vector<std::string>& command, const ChildStreams& streams) {
    pid_t child = -1;
    const std::vector<char*> arguments = argumentsOf(command);
    const int error =
        posix_spawnp(&child, arguments[0], streams.get(), nullptr, arguments.data(), environ);
    if (error == ENOENT) {
        return std::nullopt;
    }
    if (error != 0) {
        throw FileFailure(command[0], error);
    }
    return child;
}

bool endsWell(pid_t child) {
    int status = 0;
    pid_t ended = -1;
    do {
        ended = waitpid(child, &status, 0);
    } while (ended < 0 && errno == EINTR);
    return ended == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

// What a child writes; it is waited for even when that cannot be read.
ChildEnd endOf(pid_t child, int output, const std::string& name) {
    try {
        std::string text = readAll(output, name);
        return {endsWell(child), std::move(text)};
    } catch (const Failure&) {
        kill(child, SIGTERM);
        endsWell(child);
        throw;
    }
}

}  // namespace

std::optional<ChildEnd> runChild(const std::vector<std::string>& command, std::string_view input) {
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0) {
        throw FileFailure("pipe", errno);
    }
    const Descriptor readEnd(ends[0]);
    Descriptor writeEnd(ends[1]);
    const Descriptor inputFile = fileWith(input);
    const auto child = spawn(command, ChildStreams(inputFile.get(), writeEnd.get()));
    writeEnd.close();
    return child ? std::optional(endOf(*child, readEnd.get(), command[0])) : std::nullopt;
}

}  // namespace sizes
