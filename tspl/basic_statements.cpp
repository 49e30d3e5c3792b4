#include "tspl/basic_statements.h"

#include <algorithm>
#include <string_view>

#include "tspl/text.h"

namespace tspl {
namespace {

constexpr std::string_view sWords[] = {
    "FOR",  "NEXT",  "WHILE",  "WEND", "IF",   "THEN",  "ELSE", "ELSEIF",  "ENDIF",
    "GOTO", "GOSUB", "RETURN", "LET",  "DIM",  "INPUT", "OPEN", "READ",    "WRITE",
    "SEEK", "CLOSE", "COPY",   "DO",   "LOOP", "ON",    "STOP", "EXITFOR", "EXITDO"};

// NAME=, NAME$=, NAME(1)=.
bool isAssignment(const Command& command) {
    std::string_view rest =
        trimmed(std::string_view(trimmed(command.text)).substr(command.name.size()));
    if (rest.starts_with('$')) {
        rest = trimmed(rest.substr(1));
    }
    if (rest.starts_with('(')) {
        const auto end = rest.find(')');
        rest = end == std::string_view::npos ? std::string_view() : trimmed(rest.substr(end + 1));
    }
    return !command.name.empty() && rest.starts_with('=');
}

bool isLabel(const Command& command) {
    const std::string_view text = trimmed(command.text);
    return text.size() > 1 && text.starts_with(':');
}

}  // namespace

bool isBasicStatement(const Command& command) {
    const bool isWord =
        std::find(std::begin(sWords), std::end(sWords), command.name) != std::end(sWords);
    return isWord || isAssignment(command) || isLabel(command);
}

}  // namespace tspl
