#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <string>
#include <string_view>

#include "status/monitor.h"
#include "status/mute_memory.h"
#include "status/state_report.h"

namespace {

// Where the scheduler puts what the backend reads from the printer.
constexpr int backChannel = 3;
constexpr int fewestArguments = 6;
constexpr int copiesArgument = 4;

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

volatile std::sig_atomic_t sCancelled = 0;
int sWakingEnd = -1;

// The byte wakes what sleeps, whenever it comes; one is enough.
void cancel(int /*signal*/) {
    const int reason = errno;
    if (sCancelled == 0) {
        sCancelled = 1;
        if (write(sWakingEnd, "", 1) < 0) {
            sCancelled = 1;
        }
    }
    errno = reason;
}

void take(int signal) {
    struct sigaction action = {};
    action.sa_handler = cancel;
    sigfillset(&action.sa_mask);
    sigaction(signal, &action, nullptr);
}

// SIGTERM counts even where the starter had it ignored or blocked: it is how jobs are cancelled.
// Gives the end of a pipe that has something to read from then on; -1 when there is no pipe.
int takeSignals() {
    int ends[2];
    if (pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0) {
        return -1;
    }
    sWakingEnd = ends[1];
    take(SIGTERM);
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGTERM);
    for (const int signal : {SIGINT, SIGHUP}) {
        if (!isIgnored(signal)) {
            take(signal);
        }
    }
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
    sigprocmask(SIG_UNBLOCK, &signals, nullptr);
    return ends[0];
}

// A job without any filter, which a file of commands is, comes as a file: backends and monitors
// make its copies themselves. The filters have made those of a stream.
int copiesOf(int argc, char* argv[]) {
    int copies = 1;
    if (argc > fewestArguments) {
        const std::string_view text = argv[copiesArgument];
        std::from_chars(text.data(), text.data() + text.size(), copies);
    }
    return std::max(1, copies);
}

int monitor(int input, int wake, int copies) {
    status::StateReport report(writeLine, variable("PRINTER_STATE_REASONS"));
    const status::MuteMemory memory(variable("CUPS_CACHEDIR"), variable("PRINTER"),
                                    variable("DEVICE_URI"));
    status::Monitor job({input, STDOUT_FILENO, backChannel, wake, &sCancelled, copies}, report,
                        memory, writeLine);
    return job.run() == status::Monitor::End::Well ? EXIT_SUCCESS : EXIT_FAILURE;
}

}  // namespace

/// A port monitor of CUPS: `tsplstatus job_id user title copies options [file]`. Copies the TSPL
/// stream from the file or standard input to standard output, asks the printer between commands how
/// it is, and reads its answers from descriptor 3. A file is copied `copies` times. Status 0 when
/// all labels were taken, and for a job that was cancelled; 1 for any failure.
int main(int argc, char* argv[]) {
    occupyStreams();
    if (argc < fewestArguments) {
        std::fprintf(stderr, "Usage: tsplstatus job user title copies options [file]\n");
        return EXIT_FAILURE;
    }
    try {
        const int wake = takeSignals();
        const int input = argc > fewestArguments ? open(argv[fewestArguments], O_RDONLY | O_CLOEXEC)
                                                 : STDIN_FILENO;
        if (wake < 0 || input < 0) {
            writeLine("ERROR: Unable to open the stream: " + std::string(std::strerror(errno)));
            return EXIT_FAILURE;
        }
        return monitor(input, wake, copiesOf(argc, argv));
    } catch (const std::exception& problem) {
        writeLine(std::string("ERROR: The job ends: ") + problem.what());
    }
    return EXIT_FAILURE;
}
