#include "tests/system/filter_process.h"

#include <fcntl.h>
#include <grp.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <stdexcept>

#include "tests/support/temporary_folder.h"

namespace {

constexpr unsigned longestRunInSeconds = 60;

void connect(int descriptor, const std::string& path, int flags) {
    const int file = open(path.c_str(), flags, 0644);
    if (file == -1 || dup2(file, descriptor) == -1) {
        _exit(127);
    }
    close(file);
}

void limitAddressSpace(std::size_t bytes) {
    const rlimit limit = {bytes, bytes};
    if (setrlimit(RLIMIT_AS, &limit) != 0) {
        _exit(127);
    }
}

void becomeUser(uid_t user) {
    if (setgroups(0, nullptr) != 0 || setgid(user) != 0 || setuid(user) != 0) {
        _exit(127);
    }
}

[[noreturn]] void startFilter(const FilterCall& call, const TemporaryFolder& streams) {
    connect(STDIN_FILENO, streams.path("in"), O_RDONLY);
    connect(STDOUT_FILENO, streams.path("out"), O_WRONLY | O_CREAT);
    connect(STDERR_FILENO, streams.path("err"), O_WRONLY | O_CREAT);
    // The program is opened here because an ordinary user may not reach the build folder.
    const int program = open(call.program.c_str(), O_RDONLY | O_CLOEXEC);
    if (!call.workingFolder.empty() && chdir(call.workingFolder.c_str()) != 0) {
        _exit(127);
    }
    for (const auto& [name, value] : call.environment) {
        setenv(name.c_str(), value.c_str(), 1);
    }
    std::vector<char*> arguments = {const_cast<char*>(call.program.c_str())};
    for (const std::string& argument : call.arguments) {
        arguments.push_back(const_cast<char*>(argument.c_str()));
    }
    arguments.push_back(nullptr);
    alarm(longestRunInSeconds);
    if (call.userId) {
        becomeUser(*call.userId);
    }
    if (call.addressSpace) {
        limitAddressSpace(*call.addressSpace);
    }
    fexecve(program, arguments.data(), environ);
    _exit(127);
}

int waitFor(pid_t child) {
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

}  // namespace

FilterResult runFilter(const FilterCall& call) {
    const TemporaryFolder streams;
    streams.write("in", call.standardInput);
    const pid_t child = fork();
    if (child == -1) {
        throw std::runtime_error("cannot start a process");
    }
    if (child == 0) {
        startFilter(call, streams);
    }
    const int status = waitFor(child);
    return {readFile(streams.path("out")), readFile(streams.path("err")), status};
}
