#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace status {

/// What a piece of a TSPL stream is.
enum class PieceKind {
    Part,      ///< of a line whose end has not come
    Line,      ///< a command line that prints nothing, a blank line or an immediate command
    Print,     ///< a PRINT
    DataHead,  ///< a BITMAP or DOWNLOAD up to the comma behind which its data begin
    Data,      ///< data and the line end behind them, as far as they have come
};

struct Piece {
    std::size_t bytes;
    PieceKind kind;
};

/// Says where the commands of a TSPL stream end, which comes in pieces of any size. Between two
/// commands an immediate one (escape, exclamation mark and one more byte) may be put into the
/// stream; anywhere else it would become dots, or a part of a line.
///
/// A line ends with a line feed, a carriage return or both. Behind the comma that ends the head of
/// "BITMAP x,y,width,height,mode," are width * height bytes; mode 3 says their number itself,
/// behind one comma more. Behind that of 'DOWNLOAD "name",bytes,' are so many bytes. The line end
/// behind data belongs to them. Between a DOWNLOAD without data and EOP, lines are of a program
/// that the printer stores: a PRINT there prints nothing.
///
/// Data are counted and not looked at, and nothing is ever allocated.
class StreamGuard {
public:
    /// Bytes of a head without its blanks: a longer line has no data for this guard.
    static constexpr std::size_t longestHead = 256;

    /// Takes the first piece of `bytes`. It ends with its line, with its head or with its data, or
    /// with `bytes`, and the next call goes on with it. A piece of no bytes is one whose end shows
    /// only in what follows: a carriage return may be the whole line end or half of it.
    Piece take(std::span<const std::uint8_t> bytes);

    /// Takes the end of the stream: what the line under way was, as if its end had come.
    PieceKind finish();

    /// Bytes of data that are to come; they need not be taken, see pass().
    [[nodiscard]] std::uint64_t dataLeft() const { return state_ == State::Data ? dataLeft_ : 0; }
    /// So many of them have gone another way.
    void pass(std::uint64_t bytes);

    /// Whether a command has ended where the last piece did.
    [[nodiscard]] bool isBetweenCommands() const { return state_ == State::LineStart; }
    /// Whether a program is being stored, whose lines are no commands yet.
    [[nodiscard]] bool isInProgram() const { return isInProgram_; }
    /// Whether the head of data has been taken and their end has not.
    [[nodiscard]] bool isInData() const { return state_ == State::Data || isBehindData(); }
    /// Whether data have been taken whole and at most (a half of) their line end is to come.
    [[nodiscard]] bool isBehindData() const;

private:
    enum class State { LineStart, Line, LineReturn, Data, DataEnd, DataReturn };

    Piece takeData(std::span<const std::uint8_t> bytes);
    std::size_t takeDataEnd(std::span<const std::uint8_t> bytes);
    Piece takeLine(std::span<const std::uint8_t> bytes);
    void startLine(char first);
    void addToHead(char c);
    PieceKind endLine();
    [[nodiscard]] bool isImmediate() const;
    [[nodiscard]] bool hasName(std::string_view name) const;
    [[nodiscard]] std::string_view head() const { return {head_.data(), headBytes_}; }
    bool startsData();

    State state_ = State::LineStart;
    bool isInProgram_ = false;
    /// The line is none of those that are looked at.
    bool isPlain_ = false;
    bool isInQuotes_ = false;
    std::size_t headBytes_ = 0;
    std::array<char, longestHead> head_{};
    std::uint64_t dataLeft_ = 0;
};

}  // namespace status
