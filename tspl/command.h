#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tspl {

/// A place in a stream.
struct Place {
    std::uint64_t offset = 0;  ///< bytes from the start of the stream
    std::uint64_t line = 0;  ///< lines from 1, as an editor that splits no picture data counts them
};

/// A command line of a stream, at the place of its first byte.
struct Command : Place {
    /// Its first word in capitals; empty for a line that starts with no letter.
    std::string name;
    /// What follows the name, split at the commas outside quotes, blanks at both ends removed.
    /// Empty when nothing follows.
    std::vector<std::string> arguments;
    /// The line as it came, without its end.
    std::string text;
};

/// Splits a line, which holds no line end.
Command parseCommand(const Place& place, std::string_view line);

/// Whether a quotation mark of the text is never closed.
bool hasOpenQuote(std::string_view text);

/// The head of a BITMAP command: where the picture stands on the label and how large it is.
struct BitmapHead : Place {
    std::int32_t x = 0;                ///< of the left edge, in dots
    std::int32_t y = 0;                ///< of the upper edge, in dots
    std::int32_t rowBytes = 0;         ///< bytes of a row, eight dots each
    std::int32_t rows = 0;             ///< number of rows
    std::int32_t mode = 0;             ///< 0 overwrite, 1 or, 2 exclusive or, 3 compressed
    std::int32_t compressedBytes = 0;  ///< in mode 3: bytes of zlib data that follow the head

    static constexpr std::int32_t compressed = 3;

    /// Bytes of the picture.
    [[nodiscard]] std::uint64_t pictureBytes() const {
        return static_cast<std::uint64_t>(rowBytes) * static_cast<std::uint64_t>(rows);
    }
    /// Bytes of data that follow the head.
    [[nodiscard]] std::uint64_t dataBytes() const {
        return mode == compressed ? static_cast<std::uint64_t>(compressedBytes) : pictureBytes();
    }
};

}  // namespace tspl
