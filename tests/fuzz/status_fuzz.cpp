#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <span>
#include <string>
#include <vector>

#include "status/printer_watch.h"
#include "status/state_report.h"
#include "status/stream_gate.h"
#include "tests/fuzz/fuzz_target.h"

// The port monitor without its descriptors, on any stream and any answers. The first three bytes of
// the input are the size of the pieces in which the stream comes, the size of those that the
// backend takes, and the number of answers, which follow, two bytes each: how many steps of a tenth
// of a second pass before it, and the answer. The rest is the stream.

namespace {

using status::Hold;
using status::PrinterWatch;
using status::StateReport;
using status::StreamGate;

struct Input {
    std::size_t pieceBytes;
    std::size_t takenBytes;
    std::span<const std::uint8_t> answers;
    std::span<const std::uint8_t> stream;
};

void require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

class Job {
public:
    explicit Job(const Input& input)
        : input_(input),
          report_([this](const std::string& line) { note(line); }, "media-jam-error") {}

    void run() {
        while (!isOver()) {
            step();
            // Answers come to an end, and with them every reason to wait.
            require(++steps_ < 100000);
        }
        report_.clear();
        require(standing_ == 0);
        require(std::equal(out_.begin(), out_.end(), input_.stream.begin(), input_.stream.end()));
    }

private:
    // Where the stream breaks off inside a bitmap there is nothing to wait for either.
    bool isOver() const {
        return gate_.isDrained() && (watch_.isOver() || !gate_.isBetweenCommands());
    }

    void step() {
        now_ += PrinterWatch::Time{100};
        if (gate_.isBetweenCommands() && watch_.wantsToAsk(now_)) {
            watch_.asked(now_);
            watch_.taken(now_);
        }
        answer();
        read();
        copy();
        watch_.passed(now_);
        if (gate_.isDrained()) {
            watch_.streamEnded();
        }
    }

    void answer() {
        if (answersTaken_ + 2 > input_.answers.size() || wait_++ < input_.answers[answersTaken_]) {
            return;
        }
        watch_.answered(input_.answers.subspan(answersTaken_ + 1, 1));
        report_.show(watch_.status());
        answersTaken_ += 2;
        wait_ = 0;
    }

    // Every other time, data go past the gate.
    void read() {
        if (steps_ % 2 == 1 && gate_.dataLeft() > 0) {
            pass();
            return;
        }
        const auto room = gate_.room();
        const std::size_t count =
            std::min({input_.pieceBytes, room.size(), input_.stream.size() - read_});
        std::copy_n(input_.stream.begin() + static_cast<std::ptrdiff_t>(read_), count,
                    room.begin());
        gate_.filled(count);
        noteRead(count);
    }

    void pass() {
        const auto count = static_cast<std::size_t>(std::min<std::uint64_t>(
            gate_.dataLeft(), std::min(input_.pieceBytes, input_.stream.size() - read_)));
        const auto taken = input_.stream.subspan(read_, count);
        out_.insert(out_.end(), taken.begin(), taken.end());
        gate_.passed(count);
        noteRead(count);
    }

    void noteRead(std::size_t count) {
        read_ += count;
        if (read_ == input_.stream.size()) {
            gate_.end();
        }
    }

    void copy() {
        for (;;) {
            const Hold hold = watch_.hold();
            const bool isHeld = gate_.isBetweenCommands() && hold == Hold::Everything;
            const auto bytes = gate_.next(hold, !watch_.isMute());
            require(bytes.empty() || !isHeld);
            const auto taken = bytes.first(std::min(bytes.size(), input_.takenBytes));
            out_.insert(out_.end(), taken.begin(), taken.end());
            gate_.handedOn(taken.size());
            watch_.printed(gate_.prints());
            if (taken.empty()) {
                return;
            }
        }
    }

    // Keywords that stand, by the number of commas.
    void note(const std::string& line) {
        if (line.starts_with("STATE: ")) {
            const auto count = 1 + std::count(line.begin(), line.end(), ',');
            standing_ += line[7] == '+' ? count : -count;
        }
    }

    Input input_;
    std::ptrdiff_t standing_ = 1;
    StreamGate gate_;
    PrinterWatch watch_{false};
    StateReport report_;
    PrinterWatch::Time now_{0};
    std::size_t read_ = 0;
    std::size_t answersTaken_ = 0;
    unsigned wait_ = 0;
    unsigned steps_ = 0;
    std::vector<std::uint8_t> out_;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::size_t head = 3;
    constexpr std::size_t most = 20000;
    if (size < head || size > most) {
        return 0;
    }
    const std::span<const std::uint8_t> rest(data + head, size - head);
    const std::size_t answers = std::min<std::size_t>(rest.size(), std::size_t{2} * data[2]);
    Job({std::size_t{1} + data[0], std::size_t{1} + data[1], rest.first(answers),
         rest.subspan(answers)})
        .run();
    return 0;
}
