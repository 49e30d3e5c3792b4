#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "status/stream_guard.h"

namespace status {

/// What of the stream is held back.
enum class Hold {
    Nothing,
    Label,       ///< what makes or prints a label: BITMAP, DOWNLOAD, PRINT
    Everything,  ///< every command that is not under way
};

/// The piece of the stream between its two ends: takes it as it comes, hands it on command by
/// command, and holds commands back. What has been handed on in part goes on until its command
/// ends, whatever is held. No descriptors: the owner reads and writes.
class StreamGate {
public:
    StreamGate();

    /// Where the next bytes of the stream belong; empty while there is no room.
    std::span<std::uint8_t> room();
    /// So many bytes have been put there.
    void filled(std::size_t bytes) { filled_ += bytes; }
    /// The stream has ended: a last line without its end counts as whole.
    void end() { hasEnded_ = true; }

    /// What is to be handed on now; empty when nothing may be, or nothing is there. Ends behind a
    /// PRINT where a question may be due there.
    std::span<const std::uint8_t> next(Hold hold, bool endsBehindPrints = true);
    /// So many bytes of it have been handed on.
    void handedOn(std::size_t bytes);

    /// Whether an immediate command may be sent now: not within a command, and not within a program
    /// that is being stored, unless nothing more comes of it.
    [[nodiscard]] bool isBetweenCommands() const {
        return !isBegun_ && (!isInProgram_ || isDrained());
    }
    /// Whether everything that is there has been handed on, and it ends inside data.
    [[nodiscard]] bool isInData() const;
    /// While isInData: bytes of them that are to come, which may as well be handed on past the
    /// gate.
    [[nodiscard]] std::uint64_t dataLeft() const { return isInData() ? guard_.dataLeft() : 0; }
    /// So many of them have been handed on past the gate.
    void passed(std::uint64_t bytes);
    /// Number of whole PRINTs that have been handed on.
    [[nodiscard]] std::uint64_t prints() const { return prints_; }
    /// Whether the stream has ended and all of it has been handed on.
    [[nodiscard]] bool isDrained() const { return hasEnded_ && start_ == filled_; }

    /// From now on nothing is handed on but the rest of the command that is under way.
    void cancel();
    /// After cancel: whether the printer waits for no more.
    [[nodiscard]] bool isFinished() const { return !isBegun_ || isInLongLine_; }
    /// Whether of the command under way at most (a half of) the line end behind its data is
    /// missing.
    [[nodiscard]] bool needsLineEnd() const;
    /// The owner has written that line end itself.
    void endData() { isBegun_ = false; }

private:
    void scan(Hold hold, bool endsBehindPrints);
    bool takePiece(Hold hold, const Piece& piece, const StreamGuard& ahead);
    void takeLongLine(const StreamGuard& ahead);
    void takeLastLine(Hold hold, StreamGuard ahead);
    void takeBack();
    void cutBehindCommand();
    void segmentHandedOn();
    void compact();

    std::vector<std::uint8_t> buffer_;
    // The segment is what is handed on at a time: segmentStart_ <= start_ <= segmentEnd_ <=
    // filled_, of which what lies before start_ has been handed on.
    std::size_t segmentStart_ = 0;
    std::size_t start_ = 0;
    std::size_t segmentEnd_ = 0;
    std::size_t filled_ = 0;
    /// At the start of the segment, and at its end.
    StreamGuard startGuard_;
    StreamGuard guard_;
    std::uint64_t segmentPrints_ = 0;
    /// A command has been handed on in part, or the segment has.
    bool isBegun_ = false;
    bool isInLongLine_ = false;
    bool isCut_ = false;
    bool isInProgram_ = false;
    bool hasEnded_ = false;
    bool isCancelled_ = false;
    std::uint64_t prints_ = 0;
};

}  // namespace status
