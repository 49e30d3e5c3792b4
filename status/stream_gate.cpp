#include "status/stream_gate.h"

#include <algorithm>
#include <cstring>

namespace status {
namespace {

// Some pipes full: reading goes on while a slow backend takes what there is.
constexpr std::size_t bufferBytes = 256 * 1024;
// As much as may be moved to the front for the sake of a longer read.
constexpr std::size_t shortRest = 4096;

bool endsLine(std::uint8_t byte) {
    return byte == '\n' || byte == '\r';
}

}  // namespace

StreamGate::StreamGate() : buffer_(bufferBytes) {}

std::span<std::uint8_t> StreamGate::room() {
    compact();
    return std::span(buffer_).subspan(filled_);
}

// Where a line is under way, cancel has to see the byte before.
void StreamGate::compact() {
    const std::size_t rest = filled_ - start_;
    const bool isInLines = isBegun_ && (kind_ == Kind::Lines || kind_ == Kind::Print);
    const bool isWorthIt = rest <= shortRest || filled_ == buffer_.size();
    if (start_ == 0 || !isWorthIt || isInLines) {
        return;
    }
    std::memmove(buffer_.data(), buffer_.data() + start_, rest);
    segmentEnd_ -= start_;
    scanned_ -= start_;
    filled_ = rest;
    nextEnd_ = hasNext_ ? nextEnd_ - start_ : 0;
    start_ = 0;
}

std::span<const std::uint8_t> StreamGate::next(Hold hold) {
    if (start_ == segmentEnd_) {
        scan();
    }
    if (!isBegun_ && (isCancelled_ || isHeld(hold))) {
        return {};
    }
    return std::span(buffer_).subspan(start_, segmentEnd_ - start_);
}

void StreamGate::scan() {
    if (hasNext_) {
        hasNext_ = false;
        kind_ = nextKind_;
        segmentEnd_ = nextEnd_;
        if (kind_ != Kind::Data) {
            return;
        }
    }
    bool goesOn = true;
    while (goesOn && scanned_ < filled_) {
        const Piece piece = guard_.take(std::span(buffer_).subspan(scanned_, filled_ - scanned_));
        goesOn = takePiece(piece.bytes, piece.kind);
    }
    if (start_ == segmentEnd_) {
        takeLongLine();
        finishLastLine();
    }
}

// Whether the segment may become longer.
bool StreamGate::takePiece(std::size_t bytes, PieceKind kind) {
    scanned_ += bytes;
    switch (kind) {
        case PieceKind::Part:
            return false;
        case PieceKind::Line:
            kind_ = Kind::Lines;
            segmentEnd_ = scanned_;
            return !isBegun_;
        case PieceKind::Print:
            return takeLabelPart(Kind::Print);
        case PieceKind::DataHead:
            return takeLabelPart(Kind::Data);
        case PieceKind::Data:
            isBegun_ = isBegun_ && bytes > 0;
            segmentEnd_ = scanned_;
            return start_ == segmentEnd_;
    }
    return false;
}

bool StreamGate::takeLabelPart(Kind kind) {
    if (start_ < segmentEnd_) {
        hasNext_ = true;
        nextKind_ = kind;
        nextEnd_ = scanned_;
        return false;
    }
    kind_ = kind;
    segmentEnd_ = scanned_;
    return kind == Kind::Data;
}

// A line that the buffer cannot hold goes on as it comes.
void StreamGate::takeLongLine() {
    const bool isUnderWay = isBegun_ && kind_ == Kind::LongLine;
    const bool isFull = start_ == 0 && filled_ == buffer_.size();
    if ((isUnderWay || isFull) && scanned_ > start_) {
        kind_ = Kind::LongLine;
        segmentEnd_ = scanned_;
    }
}

void StreamGate::finishLastLine() {
    if (hasEnded_ && start_ == segmentEnd_ && segmentEnd_ < filled_) {
        takePiece(0, guard_.finish());
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
    isBegun_ = kind_ == Kind::LongLine || (kind_ == Kind::Data && guard_.isInData());
    isInProgram_ = guard_.isInProgram();
    prints_ += kind_ == Kind::Print ? 1 : 0;
}

bool StreamGate::isHeld(Hold hold) const {
    return hold == Hold::Everything ||
           (hold == Hold::Label && (kind_ == Kind::Print || kind_ == Kind::Data));
}

// Of lines, only the one that is under way comes to its end.
void StreamGate::cancel() {
    isCancelled_ = true;
    if (!isBegun_ || kind_ == Kind::Data || kind_ == Kind::LongLine) {
        return;
    }
    std::size_t end = start_ - 1;
    while (end < segmentEnd_ && !endsLine(buffer_[end])) {
        ++end;
    }
    const bool isHalf = end + 1 < segmentEnd_ && buffer_[end] == '\r' && buffer_[end + 1] == '\n';
    segmentEnd_ = std::min(segmentEnd_, end + (isHalf ? 2 : 1));
    isBegun_ = start_ < segmentEnd_;
}

bool StreamGate::needsLineEnd() const {
    return isBegun_ && kind_ == Kind::Data && start_ == scanned_ && guard_.isBehindData();
}

}  // namespace status
