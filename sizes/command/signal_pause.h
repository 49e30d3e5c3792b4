#pragma once

#include <csignal>

namespace sizes {

/// While it lives, signals that can wait do so; a write beyond the limit of the file's size fails
/// instead of ending the process.
class SignalPause {
public:
    SignalPause();
    ~SignalPause();
    SignalPause(const SignalPause&) = delete;
    SignalPause& operator=(const SignalPause&) = delete;

private:
    sigset_t former_{};
};

}  // namespace sizes
