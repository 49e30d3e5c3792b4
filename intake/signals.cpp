#include "intake/signals.h"

#include <csignal>
#include <ctime>

namespace intake {
namespace {

volatile std::sig_atomic_t sCancelled = 0;

void cancel(int /*signal*/) {
    sCancelled = 1;
}

// It only has to wake whoever waits.
void wake(int /*signal*/) {}

void take(int signal, void (*handler)(int)) {
    struct sigaction action = {};
    action.sa_handler = handler;
    sigfillset(&action.sa_mask);
    sigaction(signal, &action, nullptr);
}

bool isIgnored(int signal) {
    struct sigaction action = {};
    return sigaction(signal, nullptr, &action) == 0 && action.sa_handler == SIG_IGN;
}

void takeCancelling() {
    take(SIGTERM, cancel);
    for (const int signal : {SIGINT, SIGHUP}) {
        if (!isIgnored(signal)) {
            take(signal, cancel);
        }
    }
}

// Blocked but for the moments of waiting, so that no signal can come between a look at what has
// happened and the sleep until something does.
void blockAll() {
    sigset_t signals;
    sigemptyset(&signals);
    for (const int signal : {SIGTERM, SIGINT, SIGHUP, SIGCHLD}) {
        sigaddset(&signals, signal);
    }
    sigprocmask(SIG_BLOCK, &signals, nullptr);
}

timespec durationOf(int milliseconds) {
    return {milliseconds / 1000, milliseconds % 1000 * 1000000L};
}

}  // namespace

void takeSignals() {
    blockAll();
    takeCancelling();
    take(SIGCHLD, wake);
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
}

bool isCancelled() {
    return sCancelled != 0;
}

void waitFor(std::span<pollfd> descriptors, int milliseconds) {
    const timespec duration = durationOf(milliseconds);
    const int ready = ppoll(descriptors.data(), descriptors.size(),
                            milliseconds < 0 ? nullptr : &duration, noSignals());
    if (ready < 0) {
        for (pollfd& descriptor : descriptors) {
            descriptor.revents = 0;
        }
    }
    if (ready > 0) {
        // Where a descriptor is ready the signals stay blocked; this lets them in.
        const timespec atOnce = {};
        ppoll(nullptr, 0, &atOnce, noSignals());
    }
}

const sigset_t* noSignals() {
    static const sigset_t none = [] {
        sigset_t signals;
        sigemptyset(&signals);
        return signals;
    }();
    return &none;
}

}  // namespace intake
