#include "filter/cancellation.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstring>

#include "driver/log.h"

namespace {

volatile std::sig_atomic_t sCancelled = 0;
volatile std::sig_atomic_t sInput = -1;
volatile std::sig_atomic_t sEndOfFile = -1;

// libcups reads on after an interruption, so a flag alone would leave it waiting for raster that
// may never come. In exchange for the input it finds the end of a file, whether it is waiting
// now, is about to read or has not yet looked at the flag.
void cancel(int /*signal*/) {
    const int reason = errno;
    sCancelled = 1;
    dup2(sEndOfFile, sInput);
    errno = reason;
}

// A pipe that nobody writes to is a file at its end, and needs no file system.
int openEndOfFile() {
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0) {
        return -1;
    }
    close(ends[1]);
    return ends[0];
}

// Whoever started the filter may have blocked or ignored the signal.
void take(int signal, void (*handler)(int)) {
    struct sigaction action = {};
    action.sa_handler = handler;
    // Restarted, a write of picture data goes on where it was; reset, the second signal kills.
    action.sa_flags = static_cast<int>(SA_RESTART | SA_RESETHAND);
    sigemptyset(&action.sa_mask);
    sigaction(signal, &action, nullptr);
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, signal);
    sigprocmask(SIG_UNBLOCK, &signals, nullptr);
}

}  // namespace

void heedCancellation(int input) {
    if (sEndOfFile == -1) {
        sEndOfFile = openEndOfFile();
    }
    if (sEndOfFile == -1) {
        kestoLogCommon(kestoLogError, "SIGTERM ends the filter wherever it is: %s",
                       std::strerror(errno));
        return take(SIGTERM, SIG_DFL);
    }
    sInput = input;
    take(SIGTERM, cancel);
}

bool isCancelled() {
    return sCancelled != 0;
}
