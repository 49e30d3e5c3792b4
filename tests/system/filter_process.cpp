#include "tests/system/filter_process.h"

#include <fcntl.h>
#include <grp.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <iterator>
#include <sstream>
#include <stdexcept>

#include "tests/system/memory_file.h"

namespace {

void require(bool done) {
    if (!done) {
        _exit(127);
    }
}

void connect(int descriptor, int stream) {
    if (stream == -1) {
        close(descriptor);
    } else {
        require(dup2(stream, descriptor) != -1);
    }
}

void limit(__rlimit_resource resource, std::size_t most) {
    const rlimit both = {most, most};
    require(setrlimit(resource, &both) == 0);
}

void becomeUser(uid_t user) {
    require(setgroups(0, nullptr) == 0 && setgid(user) == 0 && setuid(user) == 0);
}

void setTermination(Termination termination) {
    std::signal(SIGTERM, termination == Termination::Ignored ? SIG_IGN : SIG_DFL);
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGTERM);
    const bool blocked = termination == Termination::Blocked;
    require(sigprocmask(blocked ? SIG_BLOCK : SIG_UNBLOCK, &signals, nullptr) == 0);
}

void setLimits(const FilterCall& call) {
    alarm(call.longestRun);
    if (call.userId) {
        becomeUser(*call.userId);
    }
    if (call.fileSize) {
        limit(RLIMIT_FSIZE, *call.fileSize);
    }
    if (call.addressSpace) {
        limit(RLIMIT_AS, *call.addressSpace);
    }
}

// A program that runs the filter and looks on, for example valgrind, with its options.
std::vector<std::string> supervisor() {
    const char* words = std::getenv("KESTO_FILTER_SUPERVISOR");
    std::istringstream rest(words == nullptr ? "" : words);
    return {std::istream_iterator<std::string>(rest), {}};
}

// The program and its arguments.
std::vector<std::string> commandOf(const FilterCall& call) {
    std::vector<std::string> command = supervisor();
    command.push_back(call.program);
    command.insert(command.end(), call.arguments.begin(), call.arguments.end());
    return command;
}

[[noreturn]] void becomeFilter(const FilterCall& call, const Streams& streams) {
    const std::vector<std::string> command = commandOf(call);
    // The program is opened here because an ordinary user may not reach the build folder. It
    // keeps clear of the numbers of the standard streams.
    const int opened = open(command[0].c_str(), O_RDONLY | O_CLOEXEC);
    const int program = fcntl(opened, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
    require(program != -1);
    connect(STDIN_FILENO, streams.input);
    connect(STDOUT_FILENO, streams.output);
    connect(STDERR_FILENO, streams.errors);
    require(call.workingFolder.empty() || chdir(call.workingFolder.c_str()) == 0);
    for (const auto& [name, value] : call.environment) {
        setenv(name.c_str(), value.c_str(), 1);
    }
    std::vector<char*> arguments;
    arguments.reserve(command.size() + 1);
    for (const std::string& argument : command) {
        arguments.push_back(const_cast<char*>(argument.c_str()));
    }
    arguments.push_back(nullptr);
    setTermination(call.termination);
    setLimits(call);
    fexecve(program, arguments.data(), environ);
    _exit(127);
}

}  // namespace

std::string testedFilter() {
    const char* copy = std::getenv("KESTO_FILTER_COPY");
    return copy == nullptr ? KESTO_FILTER : copy;
}

pid_t startFilter(const FilterCall& call, const Streams& streams) {
    const pid_t child = fork();
    if (child == -1) {
        throw std::runtime_error("cannot start a process");
    }
    if (child == 0) {
        becomeFilter(call, streams);
    }
    return child;
}

int statusOf(int waitStatus) {
    return WIFEXITED(waitStatus) ? WEXITSTATUS(waitStatus) : -WTERMSIG(waitStatus);
}

int waitForEnd(pid_t process) {
    int status = 0;
    waitpid(process, &status, 0);
    return statusOf(status);
}

FilterResult runFilter(const FilterCall& call) {
    const MemoryFile input(call.standardInput);
    const MemoryFile output;
    const MemoryFile errors;
    const pid_t child =
        startFilter(call, {input.descriptor(), output.descriptor(), errors.descriptor()});
    const int status = waitForEnd(child);
    return {output.content(), errors.content(), status};
}
