#pragma once

#include <cstddef>

namespace preview {

/// From now on a signal that ends the program removes its unfinished files first: SIGHUP, SIGINT,
/// SIGPIPE, SIGQUIT, SIGTERM and SIGXFSZ. Those that the starter has ignored stay ignored.
void catchEndingSignals();

/// From now on the first SIGHUP, SIGINT or SIGTERM ends nothing and is noted.
void deferEndingSignals();

/// The signal that was noted; 0 as long as there was none.
int notedSignal();

/// Removes the unfinished files and ends the process as the signal does.
void endBySignal(int signal);

/// A file that a signal removes as long as this lives. There is room for `mostUnfinishedFiles`.
class UnfinishedName {
public:
    /// `name` must outlive this.
    explicit UnfinishedName(const char* name);
    UnfinishedName(const UnfinishedName&) = delete;
    UnfinishedName& operator=(const UnfinishedName&) = delete;
    ~UnfinishedName();

private:
    std::size_t slot_;
};

inline constexpr std::size_t mostUnfinishedFiles = 4;

}  // namespace preview
