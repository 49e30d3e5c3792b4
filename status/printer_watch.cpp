#include "status/printer_watch.h"

#include <algorithm>

namespace status {

bool PrinterWatch::wantsToAsk(Time now) const {
    if (phase_ == Phase::Mute) {
        return false;
    }
    if (!hasAsked_) {
        return true;
    }
    if (phase_ == Phase::First) {
        return false;
    }
    if (isAwaiting_) {
        return takenAt_ && now - askedAt_ >= secondTry;
    }
    return needsAnswer_ || (isExpectedToChange() && now - askedAt_ >= pace);
}

bool PrinterWatch::isExpectedToChange() const {
    return status_.isStopped() || status_.isPrinting();
}

void PrinterWatch::asked(Time now) {
    hasAsked_ = true;
    isAwaiting_ = true;
    askedAt_ = now;
    ++unanswered_;
}

void PrinterWatch::taken(Time now) {
    if (waitsForBackend()) {
        takenAt_ = now;
    }
}

PrinterWatch::Event PrinterWatch::answered(std::span<const std::uint8_t> bytes) {
    const StatusByte answer(bytes.empty() ? 0 : bytes.front());
    if (bytes.empty() || !isAwaiting_ || !answer.isPossible()) {
        return Event::None;
    }
    isAwaiting_ = false;
    takenAt_.reset();
    --unanswered_;
    return takeStatus(answer);
}

PrinterWatch::Event PrinterWatch::takeStatus(StatusByte status) {
    if (phase_ == Phase::Mute) {
        // It was too late for this job; the next one will ask.
        return Event::FirstAnswer;
    }
    const bool isFirst = phase_ == Phase::First;
    const bool hasChanged = !(status == status_);
    phase_ = Phase::Watching;
    status_ = status;
    if (outdated_ > 0) {
        --outdated_;
    } else {
        needsAnswer_ = false;
    }
    if (isFirst) {
        return Event::FirstAnswer;
    }
    return hasChanged ? Event::Changed : Event::None;
}

void PrinterWatch::printed(std::uint64_t prints) {
    if (prints != prints_) {
        prints_ = prints;
        needsAnswer_ = true;
        outdated_ = unanswered_;
    }
}

PrinterWatch::Event PrinterWatch::lineClosed() {
    if (phase_ == Phase::Mute) {
        return Event::None;
    }
    const bool isFirst = phase_ == Phase::First;
    phase_ = Phase::Mute;
    isAwaiting_ = false;
    return isFirst ? Event::None : Event::FellSilent;
}

PrinterWatch::Event PrinterWatch::passed(Time now) {
    if (phase_ == Phase::Mute || !takenAt_ || now - *takenAt_ < patienceNow()) {
        return Event::None;
    }
    const bool isFirst = phase_ == Phase::First;
    phase_ = Phase::Mute;
    if (isFirst) {
        return isKnownAsMute_ ? Event::None : Event::Mute;
    }
    return Event::FellSilent;
}

PrinterWatch::Time PrinterWatch::patienceNow() const {
    return phase_ == Phase::First ? firstPatience : patience;
}

Hold PrinterWatch::hold() const {
    if (phase_ == Phase::Mute || (phase_ == Phase::First && isKnownAsMute_)) {
        return Hold::Nothing;
    }
    if (phase_ == Phase::First) {
        return Hold::Label;
    }
    return needsAnswer_ || status_.isStopped() ? Hold::Everything : Hold::Nothing;
}

bool PrinterWatch::isOver() const {
    if (!hasEnded_) {
        return false;
    }
    if (phase_ == Phase::Mute || (phase_ == Phase::First && (isKnownAsMute_ || prints_ == 0))) {
        return true;
    }
    return phase_ == Phase::Watching && !needsAnswer_ && !isAwaiting_ && !isExpectedToChange();
}

std::optional<PrinterWatch::Time> PrinterWatch::nextQuestion() const {
    if (phase_ != Phase::Watching) {
        return std::nullopt;
    }
    if (isAwaiting_) {
        return takenAt_ ? std::optional(askedAt_ + secondTry) : std::nullopt;
    }
    return isExpectedToChange() ? std::optional(askedAt_ + pace) : std::nullopt;
}

std::optional<PrinterWatch::Time> PrinterWatch::endOfPatience() const {
    if (phase_ == Phase::Mute || !takenAt_) {
        return std::nullopt;
    }
    return *takenAt_ + patienceNow();
}

}  // namespace status
