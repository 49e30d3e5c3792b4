#include "tspl/text.h"

#include <charconv>

namespace tspl {

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view blanks = " \t";
    const auto first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

std::string upperCase(std::string_view text) {
    std::string result(text);
    for (char& c : result) {
        if (c >= 'a' && c <= 'z') {
            c = static_cast<char>(c - 'a' + 'A');
        }
    }
    return result;
}

std::optional<std::int32_t> parseInteger(std::string_view text) {
    std::int32_t value = 0;
    const char* end = text.data() + text.size();
    const auto number = std::from_chars(text.data(), end, value);
    if (number.ec != std::errc() || number.ptr != end) {
        return std::nullopt;
    }
    return value;
}

std::string printable(std::string_view text) {
    constexpr char digits[] = "0123456789abcdef";
    std::string result;
    for (const char c : text) {
        if (c >= ' ' && c <= '~' && c != '\\') {
            result += c;
            continue;
        }
        const auto byte = static_cast<unsigned char>(c);
        result += "\\x";
        result += digits[byte / 16];
        result += digits[byte % 16];
    }
    return result;
}

std::string inQuotes(std::string_view text) {
    std::string result = printable(text);
    result.insert(result.begin(), '"');
    result += '"';
    return result;
}

}  // namespace tspl
