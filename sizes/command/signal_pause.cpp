#include "sizes/command/signal_pause.h"

namespace sizes {

// A signal of the process's own doing would be pending at the end and kill it before it can say
// what went wrong: this one is not wanted at all.
SignalPause::SignalPause() {
    std::signal(SIGXFSZ, SIG_IGN);
    sigset_t all;
    sigfillset(&all);
    sigprocmask(SIG_SETMASK, &all, &former_);
}

SignalPause::~SignalPause() {
    sigprocmask(SIG_SETMASK, &former_, nullptr);
}

}  // namespace sizes
