#include "preview/ending_signals.h"

#include <unistd.h>

#include <array>
#include <atomic>
#include <csignal>

namespace preview {
namespace {

constexpr int sEndingSignals[] = {SIGHUP, SIGINT, SIGPIPE, SIGQUIT, SIGTERM, SIGXFSZ};

// What the handler removes. Pointers that are replaced in one step can be read at any moment.
std::array<std::atomic<const char*>, mostUnfinishedFiles> sUnfinished;
static_assert(std::atomic<const char*>::is_always_lock_free);

volatile std::sig_atomic_t sDefers = 0;
volatile std::sig_atomic_t sNoted = 0;

bool isRequest(int signal) {
    return signal == SIGHUP || signal == SIGINT || signal == SIGTERM;
}

void onSignal(int signal) {
    if (sDefers != 0 && sNoted == 0 && isRequest(signal)) {
        sNoted = signal;
        return;
    }
    endBySignal(signal);
}

}  // namespace

void catchEndingSignals() {
    for (const int signal : sEndingSignals) {
        struct sigaction action {};
        if (sigaction(signal, nullptr, &action) != 0 || action.sa_handler == SIG_IGN) {
            continue;
        }
        action.sa_handler = onSignal;
        action.sa_flags = SA_RESTART;
        sigaction(signal, &action, nullptr);
    }
}

void deferEndingSignals() {
    sDefers = 1;
}

int notedSignal() {
    return sNoted;
}

// In its handler the signal is blocked, and comes when the handler returns.
void endBySignal(int signal) {
    for (const auto& name : sUnfinished) {
        if (name != nullptr) {
            unlink(name);
        }
    }
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

UnfinishedName::UnfinishedName(const char* name) : slot_(0) {
    while (slot_ < sUnfinished.size() && sUnfinished[slot_] != nullptr) {
        ++slot_;
    }
    if (slot_ < sUnfinished.size()) {
        sUnfinished[slot_] = name;
    }
}

UnfinishedName::~UnfinishedName() {
    if (slot_ < sUnfinished.size()) {
        sUnfinished[slot_] = nullptr;
    }
}

}  // namespace preview
