#include "preview/ending_signals.h"

#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>

namespace preview {
namespace {

constexpr int sEndingSignals[] = {SIGHUP, SIGINT, SIGPIPE, SIGQUIT, SIGTERM, SIGXFSZ};

// What the handler removes. Pointers that are replaced in one step can be read at any moment.
std::array<std::atomic<const char*>, mostUnfinishedFiles> sUnfinished;
static_assert(std::atomic<const char*>::is_always_lock_free);

// The signal is blocked while its handler runs: it comes again, with its usual action, when the
// handler returns.
void endBy(int signal) {
    for (const auto& name : sUnfinished) {
        if (name != nullptr) {
            unlink(name);
        }
    }
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

void onSignal(int signal) {
    const int savedErrno = errno;
    endBy(signal);
    errno = savedErrno;
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
