#include "status/stream_gate.h"

#include <algorithm>
#include <cstring>

namespace status {
namespace {

// A pipe full: reading goes on while a slow backend takes what there is.
constexpr std::size_t bufferBytes = std::size_t{64} * 1024;
// As much as may be moved to the front for the sake of a longer read.
constexpr std::size_t shortRest = 4096;

bool isOfLabel(PieceKind kind) {
    return kind == PieceKind::Print || kind == PieceKind::DataHead;
}

bool isWhole(PieceKind kind, const StreamGuard& guard) {
    return kind == PieceKind::Line || kind == PieceKind::Print ||
           (kind == PieceKind::Data && !guard.isInData());
}

}  // namespace

StreamGate::StreamGate() : buffer_(bufferBytes) {}

std::span<std::uint8_t> StreamGate::room() {
    compact();
    return std::span(buffer_).subspan(filled_);
}

// What has been handed on of a segment stays until all of it has: cancel reads it again.
void StreamGate::compact() {
    if (isBegun_ && start_ < segmentEnd_) {
        return;
    }
    const std::size_t rest = filled_ - start_;
    if (start_ == 0 || (rest > shortRest && filled_ < buffer_.size())) {
        return;
    }
    takeBack();
    std::memmove(buffer_.data(), buffer_.data() + start_, rest);
    segmentStart_ = start_ = segmentEnd_ = 0;
    filled_ = rest;
}

// Until something of it has been handed on, a segment may become another one.
void StreamGate::takeBack() {
    if (!isBegun_) {
        guard_ = startGuard_;
        segmentEnd_ = start_;
        isInLongLine_ = false;
    }
}

std::span<const std::uint8_t> StreamGate::next(Hold hold, bool endsBehindPrints) {
    takeBack();
    if (hold != Hold::Nothing) {
        cutBehindCommand();
    }
    if (start_ == segmentEnd_) {
        scan(hold, endsBehindPrints);
    }
    if (!isBegun_ && (isCancelled_ || hold == Hold::Everything)) {
        return {};
    }
    return std::span(buffer_).subspan(start_, segmentEnd_ - start_);
}

void StreamGate::scan(Hold hold, bool endsBehindPrints) {
    startGuard_ = guard_;
    segmentStart_ = start_;
    segmentPrints_ = 0;
    StreamGuard ahead = guard_;
    for (std::size_t at = start_; at < filled_;) {
        const Piece piece = ahead.take(std::span(buffer_).subspan(at, filled_ - at));
        at += piece.bytes;
        if (piece.kind == PieceKind::Part) {
            takeLongLine(ahead);
            takeLastLine(hold, ahead);
            return;
        }
        const bool isPrint = piece.kind == PieceKind::Print;
        if (!takePiece(hold, piece, ahead) || (isPrint && endsBehindPrints)) {
            return;
        }
    }
}

// Whether the segment may become longer.
bool StreamGate::takePiece(Hold hold, const Piece& piece, const StreamGuard& ahead) {
    if (hold == Hold::Label && isOfLabel(piece.kind)) {
        return false;
    }
    guard_ = ahead;
    segmentEnd_ += piece.bytes;
    segmentPrints_ += piece.kind == PieceKind::Print ? 1 : 0;
    if (!isBegun_ || !isWhole(piece.kind, guard_)) {
        return true;
    }
    // What was under way has come to its end.
    isInLongLine_ = false;
    isBegun_ = start_ < segmentEnd_;
    return hold == Hold::Nothing && !isCancelled_;
}

// A line that the buffer cannot hold goes on as it comes.
void StreamGate::takeLongLine(const StreamGuard& ahead) {
    const bool isFull = start_ == 0 && filled_ == buffer_.size() && segmentEnd_ == 0;
    if (isInLongLine_ || isFull) {
        isInLongLine_ = true;
        guard_ = ahead;
        segmentEnd_ = filled_;
    }
}

void StreamGate::takeLastLine(Hold hold, StreamGuard ahead) {
    if (hasEnded_ && segmentEnd_ < filled_) {
        const PieceKind kind = ahead.finish();
        takePiece(hold, {filled_ - segmentEnd_, kind}, ahead);
    }
}

void StreamGate::handedOn(std::size_t bytes) {
    if (bytes == 0) {
        return;
    }
    start_ += bytes;
    isBegun_ = true;
    if (start_ == segmentEnd_) {
        segmentHandedOn();
    }
}

void StreamGate::segmentHandedOn() {
    isBegun_ = isInLongLine_ || guard_.isInData();
    isInProgram_ = guard_.isInProgram();
    prints_ += segmentPrints_;
    startGuard_ = guard_;
    segmentStart_ = start_;
    segmentPrints_ = 0;
    isCut_ = false;
}

bool StreamGate::isInData() const {
    return isBegun_ && start_ == filled_ && guard_.isInData() && !guard_.isBehindData();
}

void StreamGate::passed(std::uint64_t bytes) {
    guard_.pass(bytes);
}

void StreamGate::cancel() {
    isCancelled_ = true;
    cutBehindCommand();
}

// Reads the segment again for the command that is under way: only that comes to its end.
void StreamGate::cutBehindCommand() {
    if (!isBegun_ || isInLongLine_ || start_ == segmentEnd_ || isCut_) {
        return;
    }
    isCut_ = true;
    guard_ = startGuard_;
    segmentEnd_ = segmentStart_;
    segmentPrints_ = 0;
    for (bool goesOn = true; goesOn && segmentEnd_ < filled_;) {
        const Piece piece =
            guard_.take(std::span(buffer_).subspan(segmentEnd_, filled_ - segmentEnd_));
        segmentEnd_ += piece.bytes;
        segmentPrints_ += piece.kind == PieceKind::Print ? 1 : 0;
        goesOn = segmentEnd_ < start_ || !isWhole(piece.kind, guard_);
    }
    if (start_ == segmentEnd_) {
        segmentHandedOn();
    }
}

bool StreamGate::needsLineEnd() const {
    return isBegun_ && start_ == filled_ && guard_.isBehindData();
}

}  // namespace status
