#include "bench/timed_run.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <cstdlib>

namespace {

[[noreturn]] void fail(const std::string& what) {
    std::fprintf(stderr, "process_bench: %s failed\n", what.c_str());
    std::exit(EXIT_FAILURE);
}

[[noreturn]] void become(const Command& command, int output) {
    dup2(open("/dev/null", O_RDONLY), STDIN_FILENO);
    dup2(output, STDOUT_FILENO);
    dup2(open("/dev/null", O_WRONLY), STDERR_FILENO);
    if (!command.ppd.empty()) {
        setenv("PPD", command.ppd.c_str(), 1);
    }
    std::vector<char*> arguments;
    for (const std::string& argument : command.arguments) {
        arguments.push_back(const_cast<char*>(argument.c_str()));
    }
    arguments.push_back(nullptr);
    execv(arguments[0], arguments.data());
    _exit(127);
}

void drain(int pipe) {
    std::array<char, 65536> buffer{};
    while (read(pipe, buffer.data(), buffer.size()) > 0) {
    }
    close(pipe);
}

double secondsOf(const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
}

}  // namespace

Cost timedRun(const Command& command, Output output, const std::string& outputPath) {
    int ends[2] = {-1, -1};
    if (output == Output::File) {
        ends[1] = open(outputPath.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    } else if (pipe2(ends, O_CLOEXEC) != 0) {
        fail("pipe");
    }
    const pid_t child = fork();
    if (child == 0) {
        become(command, ends[1]);
    }
    close(ends[1]);
    if (output == Output::Pipe) {
        drain(ends[0]);
    }
    int status = 0;
    rusage usage{};
    if (wait4(child, &status, 0, &usage) != child || status != 0) {
        fail(command.arguments[0]);
    }
    return {secondsOf(usage.ru_utime) + secondsOf(usage.ru_stime),
            static_cast<double>(usage.ru_maxrss) * 1024e-6};
}
