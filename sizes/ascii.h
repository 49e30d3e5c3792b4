#pragma once

#include <string_view>

namespace sizes {

/// Letters and figures of ASCII, whatever the locale.
constexpr bool isFigure(char c) {
    return c >= '0' && c <= '9';
}
constexpr char lowerCase(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
}

bool equalsIgnoringCase(std::string_view one, std::string_view other);
bool startsIgnoringCase(std::string_view text, std::string_view start);
bool endsIgnoringCase(std::string_view text, std::string_view end);

}  // namespace sizes
