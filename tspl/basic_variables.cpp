#include "tspl/basic_variables.h"

#include <algorithm>

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

bool BasicVariables::areUsedBy(const Command& command, const CommandRule& rule) const {
    constexpr std::size_t place = 2;
    const std::size_t numbers = rule.kind == ArgumentKind::Any
                                    ? std::min(place, command.arguments.size())
                                    : command.arguments.size();
    return !names_.empty() &&
           std::any_of(command.arguments.begin(),
                       command.arguments.begin() + static_cast<std::ptrdiff_t>(numbers),
                       [this](const std::string& argument) { return areIn(argument); });
}

}  // namespace tspl
