// Text building for the expected output and log.
#pragma once

#include <string>
#include <vector>

namespace reference {

/// Log lines in the order written, each without the line end that closes it. A line may
/// hold a line end of its own, which shows as an empty line after it.
using Lines = std::vector<std::string>;

/// The text that printf would write for `format` and its values.
[[gnu::format(printf, 1, 2)]] std::string formatted(const char* format, ...);

/// A trace line: the message behind the prefix of levels 0 and 1.
std::string debugLine(const std::string& message);

/// A failure line: the message behind the prefix of level 3.
std::string errorLine(const std::string& message);

/// A failure line of the image engine: the message behind the prefix of level 4.
std::string criticalLine(const std::string& message);

/// Puts `more` after the last of `lines`.
void append(Lines& lines, const Lines& more);

/// All lines as one text, each closed by a line end.
std::string joined(const Lines& lines);

}  // namespace reference
