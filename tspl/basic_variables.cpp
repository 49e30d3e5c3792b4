#include "tspl/basic_variables.h"

#include <algorithm>
#include <span>

#include "tspl/length.h"
#include "tspl/text.h"

namespace tspl {
namespace {

// Streams may be written to have any number of them.
constexpr std::size_t mostNames = 1000;

constexpr std::string_view sStatements[] = {"FOR", "LET", "DIM", "INPUT", "READ"};

bool isLetter(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

bool isOfName(char c) {
    return isLetter(c) || (c >= '0' && c <= '9') || c == '_';
}

// What is done on a condition: behind THEN, or behind ELSE alone.
std::string_view behindCondition(std::string_view name, std::string_view rest) {
    constexpr std::string_view word = "THEN";
    const auto then = upperCase(rest).find(word);
    if (then != std::string::npos) {
        return rest.substr(then + word.size());
    }
    return name == "ELSE" ? rest : std::string_view();
}

bool isOneOf(std::span<const CommandRule> family, const CommandRule& rule) {
    return std::any_of(family.begin(), family.end(),
                       [&rule](const CommandRule& one) { return one.name == rule.name; });
}

bool takesNumbers(const CommandRule& rule) {
    return rule.kind != ArgumentKind::Any || isOneOf(textCommands(), rule) ||
           isOneOf(codeCommands(), rule);
}

// QRCODE x,y,level,cell width,mode: letters, also where variables have their names.
bool isLetterOfCode(const Command& command, std::size_t index) {
    constexpr std::size_t level = 2;
    constexpr std::size_t mode = 4;
    return command.name == "QRCODE" && (index == level || index == mode);
}

// Names outside quotation marks, in capitals.
template <class Take>
void forEachName(std::string_view text, Take take) {
    bool isQuoted = false;
    while (!text.empty()) {
        isQuoted = isQuoted != (text.front() == '"');
        const auto end = std::find_if_not(text.begin(), text.end(), isOfName);
        const auto length = std::max<std::size_t>(1, static_cast<std::size_t>(end - text.begin()));
        if (!isQuoted && isLetter(text.front())) {
            take(upperCase(text.substr(0, length)));
        }
        text.remove_prefix(length);
    }
}

}  // namespace

void BasicVariables::note(const Command& statement) {
    const std::string_view rest =
        trimmed(std::string_view(trimmed(statement.text)).substr(statement.name.size()));
    if (std::find(std::begin(sStatements), std::end(sStatements), statement.name) !=
        std::end(sStatements)) {
        noteNamesIn(rest);
    } else if (statement.name == "IF" || statement.name == "ELSE" || statement.name == "ELSEIF") {
        noteNamesIn(behindCondition(statement.name, rest));
    } else if (rest.find_first_of("=$(") == 0) {
        noteNamesIn(statement.name);
    }
}

void BasicVariables::noteNamesIn(std::string_view text) {
    forEachName(text, [this](const std::string& name) {
        if (names_.size() < mostNames) {
            names_.insert(name);
        }
    });
}

bool BasicVariables::areIn(std::string_view argument) const {
    bool found = false;
    forEachName(argument, [&](const std::string& name) { found = found || names_.contains(name); });
    return found;
}

std::optional<Command> BasicVariables::withoutThem(const Command& command,
                                                   const CommandRule& rule) const {
    if (names_.empty() || !takesNumbers(rule)) {
        return std::nullopt;
    }
    std::optional<Command> result;
    for (std::size_t i = 0; i < command.arguments.size(); ++i) {
        const std::string& argument = command.arguments[i];
        if (!parseLength(argument) && !isLetterOfCode(command, i) && areIn(argument)) {
            if (!result) {
                result = command;
            }
            result->arguments[i].assign(1, '1');
        }
    }
    return result;
}

}  // namespace tspl
