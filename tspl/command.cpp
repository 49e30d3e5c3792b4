#include "tspl/command.h"

#include <algorithm>
#include <utility>

#include "tspl/text.h"

namespace tspl {
namespace {

bool isNameByte(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '_';
}

bool isLetter(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

std::string_view firstWord(std::string_view line) {
    if (line.empty() || !isLetter(line.front())) {
        return {};
    }
    const auto end = std::find_if_not(line.begin(), line.end(), isNameByte);
    return line.substr(0, static_cast<std::size_t>(end - line.begin()));
}

// Within a text, \["] stands for a quotation mark.
constexpr std::string_view escapedQuote = "\\[\"]";

// The text with every byte within quotation marks, and the marks, as NUL. The flag tells whether
// the last mark is missing.
std::pair<std::string, bool> withoutTexts(std::string_view text) {
    std::string bare(text);
    bool quoted = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool mark = text[i] == '"';
        if (quoted && text.substr(i).starts_with(escapedQuote)) {
            std::fill_n(bare.begin() + static_cast<std::ptrdiff_t>(i), escapedQuote.size(), '\0');
            i += escapedQuote.size() - 1;
            continue;
        }
        if (mark || quoted) {
            bare[i] = '\0';
        }
        quoted ^= mark;
    }
    return {bare, quoted};
}

std::vector<std::string> splitArguments(std::string_view text) {
    std::vector<std::string> arguments;
    if (trimmed(text).empty()) {
        return arguments;
    }
    const std::string bare = withoutTexts(text).first;
    std::size_t start = 0;
    for (auto comma = bare.find(','); comma != std::string::npos; comma = bare.find(',', start)) {
        arguments.emplace_back(trimmed(text.substr(start, comma - start)));
        start = comma + 1;
    }
    arguments.emplace_back(trimmed(text.substr(start)));
    return arguments;
}

}  // namespace

Command parseCommand(const Place& place, std::string_view line) {
    const std::string_view name = firstWord(trimmed(line));
    const std::string_view rest = trimmed(line).substr(name.size());
    return {place, upperCase(name), splitArguments(rest), std::string(line)};
}

bool hasOpenQuote(std::string_view text) {
    return withoutTexts(text).second;
}

}  // namespace tspl
