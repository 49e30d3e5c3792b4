#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "tspl/stream_handler.h"

namespace tspl {

/// Cuts a TSPL stream into commands, blank lines and picture data. Takes the stream in pieces of
/// any size and keeps no more of it than one command line.
///
/// A line ends with a line feed, a carriage return or both. The data of a BITMAP and of a
/// DOWNLOAD begin right behind the last comma of the head, are as long as the head says whatever
/// bytes they hold, and may be followed by a line end, which belongs to them. An immediate
/// command (escape, exclamation mark and one more byte, at the start of a line) has no line end,
/// and neither has a wrapper that some programs put in front of a command: <xpml>...</xpml>.
class StreamParser {
public:
    /// Bytes of the longest line that is read.
    static constexpr std::size_t longestLine = 65536;

    /// `handler` must outlive the parser.
    explicit StreamParser(StreamHandler& handler) : handler_(handler) {}

    /// Takes the next piece of the stream.
    void feed(std::span<const std::uint8_t> bytes);

    /// Takes the end of the stream: a last line without a line end counts.
    void finish();

    /// Number of bytes taken so far.
    [[nodiscard]] std::uint64_t offset() const { return offset_; }

private:
    enum class State { Line, LongLine, Bitmap, Download };

    std::size_t takeData(std::span<const std::uint8_t> bytes);
    void takeLineByte(std::uint8_t byte);
    void endLine();
    void addToLine(char c);
    void startDataAfterComma();
    void endWrapper();
    void startData(State kind, std::uint64_t bytes);
    void endData();
    void reportBlankLines();
    void reportCommand();

    StreamHandler& handler_;
    State state_ = State::Line;
    std::uint64_t offset_ = 0;
    std::string line_;
    Place lineStart_;
    std::uint64_t lineNumber_ = 1;
    std::size_t commas_ = 0;
    std::uint64_t leadingBlanks_ = 0;
    Place blankStart_;
    std::uint64_t blankLines_ = 0;
    Place dataStart_;
    std::uint64_t dataBytes_ = 0;
    std::uint64_t dataTaken_ = 0;
    /// The byte before was a carriage return: a line feed now belongs to the same line end.
    bool afterReturn_ = false;
    /// Data have just ended: a line end now is theirs.
    bool afterData_ = false;
};

}  // namespace tspl
