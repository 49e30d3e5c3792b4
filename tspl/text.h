#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tspl {

/// The text without blanks and tabs at both ends.
std::string_view trimmed(std::string_view text);

/// The text with the letters a to z as capitals; other bytes stay.
std::string upperCase(std::string_view text);

/// Reads a whole number between -2^31 and 2^31 - 1 that fills the text; nothing for anything else.
std::optional<std::int32_t> parseInteger(std::string_view text);

/// The text with every byte that is not printable ASCII, and the backslash, as \xNN.
std::string printable(std::string_view text);

/// The same between quotation marks.
std::string inQuotes(std::string_view text);

}  // namespace tspl
