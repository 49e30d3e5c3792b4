#include "tspl/command_rules.h"

#include <array>

#include "tspl/length.h"
#include "tspl/text.h"

namespace tspl {
namespace {

bool isOfKind(const std::string& argument, ArgumentKind kind) {
    switch (kind) {
        case ArgumentKind::Integers:
            return parseInteger(argument).has_value();
        case ArgumentKind::Lengths: {
            const auto length = parseLength(argument);
            return length && length->value >= 0;
        }
        case ArgumentKind::SignedLengths:
            return parseLength(argument).has_value();
        case ArgumentKind::Any:
            break;
    }
    return true;
}

std::string countWanted(const CommandRule& rule) {
    const std::string fewest = std::to_string(rule.fewestArguments);
    if (rule.mostArguments == anyNumber) {
        return fewest + (rule.fewestArguments == 1 ? " argument or more" : " arguments or more");
    }
    const std::string most = std::to_string(rule.mostArguments);
    const std::string range =
        rule.fewestArguments == rule.mostArguments ? most : fewest + " to " + most;
    return range + (rule.mostArguments == 1 ? " argument" : " arguments");
}

}  // namespace

const CommandRule* findRule(std::string_view name) {
    constexpr std::array families = {settingCommands, shapeCommands, textCommands,   codeCommands,
                                     fileCommands,    paperCommands, machineCommands};
    for (const auto family : families) {
        for (const CommandRule& rule : family()) {
            if (rule.name == name) {
                return &rule;
            }
        }
    }
    return nullptr;
}

std::optional<std::string> findFault(const CommandRule& rule, const Command& command) {
    const std::string name(rule.name);
    const bool isComment = name == "REM";
    if (!isComment && hasOpenQuote(command.text)) {
        return name + " has a quotation mark that is never closed";
    }
    const std::size_t count = command.arguments.size();
    if (count < rule.fewestArguments || count > rule.mostArguments) {
        return name + " takes " + countWanted(rule) + ", not " + std::to_string(count);
    }
    for (const std::string& argument : command.arguments) {
        if (!isOfKind(argument, rule.kind)) {
            return name + " does not take \"" + printable(argument) + '"';
        }
    }
    return std::nullopt;
}

std::int32_t integer(const Command& command, std::size_t index) {
    return parseInteger(command.arguments[index]).value_or(0);
}

void checkRange(Printer& printer, const Command& command, std::size_t index, std::int32_t least,
                std::int32_t most, std::string_view what) {
    const std::int32_t value = integer(command, index);
    if (value < least || value > most) {
        printer.complain(command, command.name + ": " + std::string(what) + " is " +
                                      std::to_string(least) + " to " + std::to_string(most) +
                                      ", not " + std::to_string(value));
    }
}

std::string quoted(const Command& command) {
    constexpr std::size_t longest = 40;
    const std::string text = printable(command.text);
    return text.size() <= longest ? text : text.substr(0, longest) + "...";
}

}  // namespace tspl
