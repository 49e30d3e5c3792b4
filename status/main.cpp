#include <fcntl.h>
#include <sys/signalfd.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <string>

#include "status/monitor.h"
#include "status/mute_memory.h"
#include "status/state_report.h"

namespace {

// Where the scheduler puts what the backend reads from the printer.
constexpr int backChannel = 3;
constexpr int fewestArguments = 6;

// One write, so that lines of a job's programs stay whole.
void writeLine(const std::string& text) {
    const std::string line = text + "\n";
    if (write(STDERR_FILENO, line.data(), line.size()) < 0) {
        return;  // There is nobody to tell.
    }
}

std::string variable(const char* name) {
    const char* value = std::getenv(name);
    return value != nullptr ? value : "";
}

// What is opened later must not take the place of a stream that the starter left out: reading from
// it or writing to it would then be something else than a failure.
void occupyStreams() {
    for (int stream = STDIN_FILENO; stream <= backChannel; ++stream) {
        if (fcntl(stream, F_GETFD) == -1) {
            open("/dev/null", stream == STDOUT_FILENO ? O_RDONLY : O_WRONLY);
        }
    }
}

bool isIgnored(int signal) {
    struct sigaction action = {};
    return sigaction(signal, nullptr, &action) == 0 && action.sa_handler == SIG_IGN;
}

// SIGTERM counts even where the starter had it ignored: it is how jobs are cancelled.
int takeSignals() {
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGTERM);
    for (const int signal : {SIGINT, SIGHUP}) {
        if (!isIgnored(signal)) {
            sigaddset(&signals, signal);
        }
    }
    std::signal(SIGTERM, SIG_DFL);
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
    sigprocmask(SIG_BLOCK, &signals, nullptr);
    return signalfd(-1, &signals, SFD_CLOEXEC);
}

int monitor(int input, int signals) {
    status::StateReport report(writeLine, variable("PRINTER_STATE_REASONS"));
    const status::MuteMemory memory(variable("CUPS_CACHEDIR"), variable("PRINTER"),
                                    variable("DEVICE_URI"));
    status::Monitor job({input, STDOUT_FILENO, backChannel, signals}, report, memory, writeLine);
    return job.run() == status::Monitor::End::Well ? EXIT_SUCCESS : EXIT_FAILURE;
}

}  // namespace

/// A port monitor of CUPS: `tsplstatus job_id user title copies options [file]`. Copies the TSPL
/// stream from the file or standard input to standard output, asks the printer between commands how
/// it is, and reads its answers from descriptor 3. Status 0 when all labels were taken, and for a
/// job that was cancelled; 1 for any failure.
int main(int argc, char* argv[]) {
    occupyStreams();
    if (argc < fewestArguments) {
        std::fprintf(stderr, "Usage: tsplstatus job user title copies options [file]\n");
        return EXIT_FAILURE;
    }
    try {
        const int signals = takeSignals();
        const int input = argc > fewestArguments ? open(argv[fewestArguments], O_RDONLY | O_CLOEXEC)
                                                 : STDIN_FILENO;
        if (signals < 0 || input < 0) {
            writeLine("ERROR: Unable to open the stream: " + std::string(std::strerror(errno)));
            return EXIT_FAILURE;
        }
        return monitor(input, signals);
    } catch (const std::exception& problem) {
        writeLine(std::string("ERROR: The job ends: ") + problem.what());
    }
    return EXIT_FAILURE;
}
