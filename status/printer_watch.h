#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <span>

#include "status/status_byte.h"
#include "status/stream_gate.h"

namespace status {

/// When a printer is asked, what its answers hold back, and when a job is over. Knows no clock and
/// no descriptors: it is told what has happened and when.
///
/// The first question goes out before the stream; no label does until it is answered. After each
/// PRINT the next label waits for an answer, and for as long as the printer says that it is
/// stopped. While the printer is stopped or printing it is asked twice a second. It is mute when
/// the first question finds no answer in time, and from then on as soon as it falls silent for
/// long: a mute printer is asked no more and holds nothing back.
class PrinterWatch {
public:
    /// Time since any moment that is the same for all calls.
    using Time = std::chrono::milliseconds;

    /// For the answer to the first question.
    static constexpr Time firstPatience{1500};
    /// For any answer later on.
    static constexpr Time patience{10000};
    /// Between two questions to a printer that is stopped or printing.
    static constexpr Time pace{500};
    /// Until a question without an answer is asked again.
    static constexpr Time secondTry{2000};

    /// What the caller has to tell people or to remember.
    enum class Event {
        None,
        Changed,      ///< status() is another one
        FirstAnswer,  ///< the printer is not mute; status() may be another one
        Mute,         ///< no answer to the first question
        FellSilent,   ///< no answers any more
    };

    /// A printer that is known as mute is asked once and holds nothing back; answers in time show
    /// that it is not mute any more.
    explicit PrinterWatch(bool isKnownAsMute) : isKnownAsMute_(isKnownAsMute) {}

    /// Whether a question is due.
    [[nodiscard]] bool wantsToAsk(Time now) const;
    /// The question has been written.
    void asked(Time now);
    /// The backend has taken all that was written, the question as well: from here on silence
    /// counts. Waiting for a printer that is switched off is the backend's business.
    void taken(Time now);
    /// Whether an answer is due that changes what is done.
    [[nodiscard]] bool isAwaiting() const {
        return isAwaiting_ && phase_ != Phase::Mute && !(phase_ == Phase::First && isKnownAsMute_);
    }
    /// Whether taken() is waited for.
    [[nodiscard]] bool waitsForBackend() const { return isAwaiting_ && !takenAt_; }

    /// Bytes have come from the printer. The first one behind a question is the answer, when it can
    /// be one; nobody asked for the others.
    Event answered(std::span<const std::uint8_t> bytes);
    /// So many PRINTs have been handed on.
    void printed(std::uint64_t prints);
    /// The whole stream has been handed on.
    void streamEnded() { hasEnded_ = true; }
    /// There is no way any more by which answers come.
    Event lineClosed();
    /// Time has passed.
    Event passed(Time now);

    [[nodiscard]] Hold hold() const;
    /// After streamEnded: whether the job is over.
    [[nodiscard]] bool isOver() const;
    /// Whether the last that is known of the printer is that it is stopped.
    [[nodiscard]] bool isStopped() const { return status_.isStopped(); }
    [[nodiscard]] StatusByte status() const { return status_; }
    [[nodiscard]] bool isMute() const { return phase_ == Phase::Mute; }

    /// When the next question is due, if nothing happens before.
    [[nodiscard]] std::optional<Time> nextQuestion() const;
    /// When passed() has something to say, if no answer comes.
    [[nodiscard]] std::optional<Time> endOfPatience() const;

private:
    enum class Phase { First, Watching, Mute };

    [[nodiscard]] Time patienceNow() const;
    [[nodiscard]] bool isExpectedToChange() const;
    Event takeStatus(StatusByte status);

    bool isKnownAsMute_;
    Phase phase_ = Phase::First;
    StatusByte status_;
    bool hasAsked_ = false;
    bool isAwaiting_ = false;
    Time askedAt_{0};
    /// When the backend had taken the oldest question without an answer.
    std::optional<Time> takenAt_;
    bool needsAnswer_ = false;
    bool hasEnded_ = false;
    std::uint64_t prints_ = 0;
    /// Questions without an answer, and how many of them are older than the last PRINT: as many
    /// answers may be older as well.
    unsigned unanswered_ = 0;
    unsigned outdated_ = 0;
};

}  // namespace status
