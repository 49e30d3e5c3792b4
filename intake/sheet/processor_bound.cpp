#include "intake/sheet/processor_bound.h"

#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <string_view>

namespace intake::sheet {
namespace {

constexpr rlim_t sSeconds = 30;

void endWith(std::string_view line) {
    if (write(STDERR_FILENO, line.data(), line.size()) < 0) {
        _exit(EXIT_FAILURE);
    }
    _exit(EXIT_FAILURE);
}

void endForTime(int /*signal*/) {
    endWith("ERROR: The document takes too long to look for labels in it\n");
}

void endForMemory(int /*signal*/) {
    endWith("ERROR: The document takes too much memory to look for labels in it\n");
}

rlim_t secondsUsed() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<rlim_t>(usage.ru_utime.tv_sec + usage.ru_stime.tv_sec);
}

}  // namespace

void boundNextStep() {
    std::signal(SIGXCPU, endForTime);
    std::signal(SIGABRT, endForMemory);
    rlimit limit{};
    if (getrlimit(RLIMIT_CPU, &limit) == 0) {
        // At the bound that cannot be moved the process would be killed without a word.
        limit.rlim_cur = std::min(limit.rlim_max - 1, secondsUsed() + 1 + sSeconds);
        setrlimit(RLIMIT_CPU, &limit);
    }
}

}  // namespace intake::sheet
