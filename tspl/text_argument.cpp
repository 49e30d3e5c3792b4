#include "tspl/text_argument.h"

#include <algorithm>

#include "tspl/text.h"

namespace tspl {
namespace {

struct Escape {
    std::string_view written;
    char meant;
};

constexpr Escape escapes[] = {{"\\[\"]", '"'}, {"\\[R]", '\r'}, {"\\[L]", '\n'}};

const Escape* escapeAt(std::string_view text) {
    const auto* const found =
        std::find_if(std::begin(escapes), std::end(escapes),
                     [&](const Escape& escape) { return text.starts_with(escape.written); });
    return found == std::end(escapes) ? nullptr : found;
}

bool startsAName(std::string_view argument) {
    if (argument.empty()) {
        return false;
    }
    const char first = upperCase(argument.substr(0, 1)).front();
    return (first >= 'A' && first <= 'Z') || first == '@' || first == '(';
}

}  // namespace

std::optional<TextArgument> parseTextArgument(std::string_view argument) {
    if (!argument.starts_with('"')) {
        return std::nullopt;
    }
    argument.remove_prefix(1);
    TextArgument text;
    while (!argument.empty() && argument.front() != '"') {
        const Escape* escape = escapeAt(argument);
        text.bytes += escape == nullptr ? argument.front() : escape->meant;
        argument.remove_prefix(escape == nullptr ? 1 : escape->written.size());
    }
    if (argument.empty()) {
        return std::nullopt;
    }
    text.behind = trimmed(argument.substr(1));
    return text;
}

std::string nameOf(std::string_view argument) {
    const auto text = parseTextArgument(argument);
    return text && text->behind.empty() ? text->bytes : std::string(argument);
}

bool isExpression(std::string_view argument) {
    const auto text = parseTextArgument(argument);
    return text ? text->behind.starts_with('+') : startsAName(argument);
}

}  // namespace tspl
