#pragma once

#include <sys/types.h>

#include <chrono>
#include <csignal>
#include <cstdint>
#include <optional>
#include <span>
#include <string>

#include "status/mute_memory.h"
#include "status/printer_watch.h"
#include "status/state_report.h"
#include "status/stream_gate.h"

namespace status {

/// What a port monitor is started with.
struct MonitorStreams {
    int input;        ///< the stream
    int output;       ///< to the backend
    int backChannel;  ///< what the printer says
    int wake;         ///< has something to read once the job is to end
    const volatile std::sig_atomic_t* isCancelled;  ///< not 0 from then on
    int copies = 1;  ///< of the input, which is a file if there are more than one
};

/// The job of a port monitor: copies the stream, asks between commands, reports the answers.
class Monitor {
public:
    /// Whether the job went well; what did not has been said in a line.
    enum class End { Well, Failed };

    Monitor(const MonitorStreams& streams, StateReport& report, const MuteMemory& memory,
            StateReport::Line line);

    End run();

private:
    using Time = PrinterWatch::Time;

    struct Ready {
        bool input;
        bool backChannel;
        bool outputGone;
    };

    bool step();
    [[nodiscard]] bool mayReadOn() const;
    [[nodiscard]] bool isDone();
    void work();
    Ready wait();
    [[nodiscard]] int timeout() const;
    void noteCancelling();
    void takeStream();
    [[nodiscard]] bool mayPassData() const;
    void readStream();
    void endInput();
    void passData();
    bool startNextCopy();
    void readAnswers();
    void tell(PrinterWatch::Event event);
    void noteWhatIsTaken();
    bool ask();
    bool copy();
    void endLineOfData();
    std::size_t writeSome(std::span<const std::uint8_t> bytes);
    void fail(const std::string& text);

    MonitorStreams streams_;
    StateReport& report_;
    const MuteMemory& memory_;
    StateReport::Line line_;
    StreamGate gate_;
    PrinterWatch watch_;
    bool isPipe_;
    /// The stream and the output are pipes, and data can go from one to the other.
    bool canSplice_;
    bool hasBackChannel_ = true;
    bool hasInput_ = true;
    /// A read that should have waited did not.
    bool isInputLate_ = false;
    /// The output takes no more for the moment.
    bool isBlocked_ = false;
    bool isCancelled_ = false;
    bool hasFailed_ = false;
    /// The printer fell silent while it was stopped.
    bool isInDoubt_ = false;
    std::optional<Time> lineEndMissingSince_;
};

}  // namespace status
