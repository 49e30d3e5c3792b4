#pragma once

#include <chrono>
#include <cstdint>
#include <ostream>

#include "tspl/sink.h"

namespace preview {

/// A line that tells how far a long stream has been read. First in a list of sinks, it makes way
/// for what the others write.
class ProgressLine : public tspl::Sink {
public:
    /// Writes nothing when not `enabled`. `streamBytes` is 0 for a stream of unknown length.
    ProgressLine(std::ostream& out, bool enabled, std::uint64_t streamBytes)
        : out_(out), enabled_(enabled), streamBytes_(streamBytes) {}
    ~ProgressLine() override { hide(); }

    /// Shows how many bytes are read. Short streams end before anything is shown.
    void show(std::uint64_t bytesRead);

    /// Removes the line from the screen.
    void hide();

    void onEntry(const tspl::Entry&) override { hide(); }
    void onFinding(const tspl::Finding&) override { hide(); }
    void onLabel(const tspl::PrintedLabel&) override;

private:
    using Clock = std::chrono::steady_clock;

    std::ostream& out_;
    bool enabled_;
    std::uint64_t streamBytes_;
    std::uint64_t labels_ = 0;
    Clock::time_point next_ = Clock::now() + std::chrono::milliseconds(500);
    bool shown_ = false;
};

}  // namespace preview
