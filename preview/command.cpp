#include "preview/command.h"

#include <algorithm>

#include "preview/text.h"

namespace preview {
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

std::vector<std::string> splitArguments(std::string_view text) {
    std::vector<std::string> arguments;
    if (trimmed(text).empty()) {
        return arguments;
    }
    bool quoted = false;
    std::size_t start = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        quoted ^= text[i] == '"';
        if (text[i] == ',' && !quoted) {
            arguments.emplace_back(trimmed(text.substr(start, i - start)));
            start = i + 1;
        }
    }
    arguments.emplace_back(trimmed(text.substr(start)));
    return arguments;
}

}  // namespace

Command parseCommand(std::uint64_t offset, std::string_view line) {
    const std::string_view name = firstWord(trimmed(line));
    const std::string_view rest = trimmed(line).substr(name.size());
    return {offset, upperCase(name), splitArguments(rest), std::string(line)};
}

bool hasOpenQuote(std::string_view text) {
    return std::count(text.begin(), text.end(), '"') % 2 != 0;
}

}  // namespace preview
