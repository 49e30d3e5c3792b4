#include "status/monitor.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <cstring>
#include <utility>

namespace status {
namespace {

using Time = PrinterWatch::Time;

// Bytes of commands that are read at a time: the data behind them may go from pipe to pipe.
constexpr std::size_t commandBytes = 4096;
// Fewer data than this are read with what follows them.
constexpr std::uint64_t fewestSplicedBytes = 16384;
// The size of the largest pipe that a user may ask for by default.
constexpr std::uint64_t mostSplicedBytes = std::uint64_t{1} << 20;

constexpr std::array<std::uint8_t, 3> question{0x1b, '!', '?'};
constexpr std::array<std::uint8_t, 2> lineEnd{'\r', '\n'};

// How soon it is seen that the backend has taken what was written.
constexpr Time backendPace{20};
// For the line end behind a cancelled bitmap, which comes with its last bytes or not at all.
constexpr Time lineEndPatience{100};

Time now() {
    return std::chrono::duration_cast<Time>(std::chrono::steady_clock::now().time_since_epoch());
}

bool isPipe(int descriptor) {
    struct stat details = {};
    return fstat(descriptor, &details) == 0 && S_ISFIFO(details.st_mode);
}

bool isForLater() {
    return errno == EAGAIN || errno == EINTR;
}

bool isReadyFor(short event, int descriptor) {
    pollfd look{descriptor, event, 0};
    return poll(&look, 1, 0) > 0 && (look.revents & event) != 0;
}

}  // namespace

Monitor::Monitor(const MonitorStreams& streams, StateReport& report, const MuteMemory& memory,
                 StateReport::Line line)
    : streams_(streams),
      report_(report),
      memory_(memory),
      line_(std::move(line)),
      watch_(memory.isMute()),
      isPipe_(isPipe(streams.output)),
      canSplice_(isPipe_ && isPipe(streams.input)) {
    // The more comes at a time, the seldomer the filter and the monitor wait for each other.
    // Without that room it is as it was.
    if (canSplice_) {
        fcntl(streams.input, F_SETPIPE_SZ, static_cast<int>(mostSplicedBytes));
    }
}

Monitor::End Monitor::run() {
    while (step()) {
    }
    report_.clear();
    if (isInDoubt_ && !hasFailed_ && !isCancelled_) {
        fail("The printer has fallen silent while it was stopped: labels may be missing");
    }
    return hasFailed_ ? End::Failed : End::Well;
}

bool Monitor::step() {
    work();
    if (hasFailed_ || isDone()) {
        return false;
    }
    if (mayReadOn()) {
        takeStream();
        return true;
    }
    const Ready ready = wait();
    noteCancelling();
    if (ready.backChannel) {
        readAnswers();
    }
    if (ready.outputGone) {
        if (!isDone()) {
            fail("Nobody takes the printer's data any more");
        }
        return false;
    }
    if (!hasBackChannel_) {
        tell(watch_.lineClosed());
    }
    if (ready.input) {
        takeStream();
    }
    noteWhatIsTaken();
    tell(watch_.passed(now()));
    return true;
}

// Inside data there is nothing to ask and nothing to hold, and cancelling waits for their end:
// while no answer is due, the only thing to wait for is the stream.
bool Monitor::mayReadOn() const {
    return hasInput_ && !isInputLate_ && !isBlocked_ && gate_.isInData() && !watch_.isAwaiting();
}

bool Monitor::isDone() {
    if (isCancelled_) {
        return gate_.isFinished() || (!hasInput_ && gate_.next(Hold::Nothing).empty());
    }
    // Where the stream broke off inside a bitmap, a question would be dots of it.
    return gate_.isDrained() && (watch_.isOver() || !gate_.isBetweenCommands());
}

void Monitor::work() {
    while (!hasFailed_ && !isBlocked_ && (ask() || copy())) {
    }
    if (gate_.isDrained()) {
        watch_.streamEnded();
    }
    if (isCancelled_ && !hasFailed_) {
        endLineOfData();
    }
    noteWhatIsTaken();
}

Monitor::Ready Monitor::wait() {
    const bool takesInput = hasInput_ && !gate_.room().empty() && !(isBlocked_ && mayPassData());
    std::array<pollfd, 4> look{{
        {takesInput ? streams_.input : -1, POLLIN, 0},
        {hasBackChannel_ ? streams_.backChannel : -1, POLLIN, 0},
        {isCancelled_ ? -1 : streams_.wake, POLLIN, 0},
        {streams_.output, static_cast<short>(isBlocked_ ? POLLOUT : 0), 0},
    }};
    if (poll(look.data(), look.size(), timeout()) < 0) {
        return {};
    }
    if ((look[3].revents & POLLOUT) != 0) {
        isBlocked_ = false;
    }
    if (look[0].revents != 0) {
        isInputLate_ = false;
    }
    return {look[0].revents != 0, look[1].revents != 0,
            (look[3].revents & (POLLERR | POLLNVAL)) != 0};
}

int Monitor::timeout() const {
    std::optional<Time> until = watch_.endOfPatience();
    const auto bringForward = [&until](std::optional<Time> moment) {
        until = until && moment ? std::min(*until, *moment) : (moment ? moment : until);
    };
    if (gate_.isBetweenCommands() && !isBlocked_ && !isCancelled_) {
        bringForward(watch_.nextQuestion());
    }
    if (watch_.waitsForBackend()) {
        bringForward(now() + backendPace);
    }
    if (lineEndMissingSince_) {
        bringForward(*lineEndMissingSince_ + lineEndPatience);
    }
    return until ? static_cast<int>(std::max(*until - now(), Time{0}).count()) : -1;
}

void Monitor::noteCancelling() {
    if (*streams_.isCancelled != 0 && !isCancelled_) {
        isCancelled_ = true;
        gate_.cancel();
    }
}

void Monitor::takeStream() {
    if (mayPassData()) {
        passData();
    } else {
        readStream();
    }
}

void Monitor::readStream() {
    const auto room = gate_.room();
    const std::size_t most = canSplice_ && !gate_.isInData() ? commandBytes : room.size();
    const ssize_t count = read(streams_.input, room.data(), std::min(most, room.size()));
    if (count > 0) {
        gate_.filled(static_cast<std::size_t>(count));
    } else if (count == 0 && startNextCopy()) {
        return;
    } else if (count == 0) {
        endInput();
    } else if (isForLater()) {
        isInputLate_ = errno == EAGAIN;
    } else {
        hasInput_ = false;
        fail(std::string("Unable to read the stream: ") + std::strerror(errno));
    }
}

void Monitor::endInput() {
    hasInput_ = false;
    gate_.end();
}

bool Monitor::mayPassData() const {
    return canSplice_ && gate_.dataLeft() >= fewestSplicedBytes;
}

// From pipe to pipe without a copy. Waits for both, unless an answer is due; a signal ends the
// wait.
void Monitor::passData() {
    const auto most = static_cast<std::size_t>(std::min(gate_.dataLeft(), mostSplicedBytes));
    const unsigned wait = watch_.isAwaiting() ? SPLICE_F_NONBLOCK : 0;
    const ssize_t count =
        splice(streams_.input, nullptr, streams_.output, nullptr, most, SPLICE_F_MOVE | wait);
    if (count > 0) {
        gate_.passed(static_cast<std::uint64_t>(count));
    } else if (count == 0) {
        endInput();
    } else if (errno == EAGAIN) {
        isInputLate_ = !isReadyFor(POLLIN, streams_.input);
        isBlocked_ = !isInputLate_;
    } else if (errno == EINVAL || errno == ENOSYS) {
        canSplice_ = false;
    } else if (errno != EINTR) {
        fail(std::string("Unable to write to the backend: ") + std::strerror(errno));
    }
}

bool Monitor::startNextCopy() {
    return streams_.copies-- > 1 && lseek(streams_.input, 0, SEEK_SET) == 0;
}

void Monitor::readAnswers() {
    std::array<std::uint8_t, 1024> bytes{};
    const ssize_t count = read(streams_.backChannel, bytes.data(), bytes.size());
    if (count > 0) {
        tell(watch_.answered(std::span(bytes).first(static_cast<std::size_t>(count))));
    } else if (count == 0 || !isForLater()) {
        hasBackChannel_ = false;
    }
}

void Monitor::tell(PrinterWatch::Event event) {
    switch (event) {
        case PrinterWatch::Event::None:
            break;
        case PrinterWatch::Event::FirstAnswer:
            memory_.forget();
            report_.show(watch_.status());
            break;
        case PrinterWatch::Event::Changed:
            report_.show(watch_.status());
            break;
        case PrinterWatch::Event::Mute:
            memory_.remember();
            line_("INFO: The printer does not tell its state.");
            break;
        case PrinterWatch::Event::FellSilent:
            isInDoubt_ = watch_.isStopped();
            report_.clear();
            line_("INFO: The printer does not tell its state any more.");
            break;
    }
}

// Until its pipe is empty the backend may still be looking for a printer that is switched off.
void Monitor::noteWhatIsTaken() {
    if (!watch_.waitsForBackend()) {
        return;
    }
    int left = 0;
    if (!isPipe_ || ioctl(streams_.output, FIONREAD, &left) != 0 || left == 0) {
        watch_.taken(now());
    }
}

// What the printer has said without being asked is read away before, so that it is no answer.
bool Monitor::ask() {
    if (isCancelled_ || !gate_.isBetweenCommands() || !watch_.wantsToAsk(now())) {
        return false;
    }
    while (hasBackChannel_ && isReadyFor(POLLIN, streams_.backChannel)) {
        readAnswers();
    }
    if (!hasBackChannel_ || !watch_.wantsToAsk(now())) {
        return false;
    }
    if (!isReadyFor(POLLOUT | POLLERR, streams_.output)) {
        isBlocked_ = true;
        return false;
    }
    // Where there is room, there is room for three bytes.
    if (writeSome(question) < question.size()) {
        return false;
    }
    watch_.asked(now());
    return true;
}

bool Monitor::copy() {
    if (isBlocked_ || hasFailed_) {
        return false;
    }
    noteCancelling();
    const auto bytes = gate_.next(watch_.hold(), !watch_.isMute());
    const std::size_t written = bytes.empty() ? 0 : writeSome(bytes);
    gate_.handedOn(written);
    watch_.printed(gate_.prints());
    return written > 0;
}

void Monitor::endLineOfData() {
    if (!gate_.needsLineEnd()) {
        lineEndMissingSince_.reset();
        return;
    }
    if (!lineEndMissingSince_) {
        lineEndMissingSince_ = now();
    }
    if (!hasInput_ || now() - *lineEndMissingSince_ >= lineEndPatience) {
        writeSome(lineEnd);
        gate_.endData();
    }
}

// While an answer is due, no more is written at a time than a pipe takes without blocking. While
// none is, there is nothing to do but to write; a signal ends the wait.
std::size_t Monitor::writeSome(std::span<const std::uint8_t> bytes) {
    if (watch_.isAwaiting()) {
        if (!isReadyFor(POLLOUT | POLLERR, streams_.output)) {
            isBlocked_ = true;
            return 0;
        }
        bytes = bytes.first(std::min<std::size_t>(bytes.size(), PIPE_BUF));
    }
    const ssize_t count = write(streams_.output, bytes.data(), bytes.size());
    if (count >= 0) {
        return static_cast<std::size_t>(count);
    }
    if (isForLater()) {
        isBlocked_ = true;
    } else {
        fail(std::string("Unable to write to the backend: ") + std::strerror(errno));
    }
    return 0;
}

void Monitor::fail(const std::string& text) {
    if (!hasFailed_) {
        report_.clear();
        line_((isCancelled_ ? "DEBUG: " : "ERROR: ") + text);
    }
    hasFailed_ = !isCancelled_;
}

}  // namespace status
