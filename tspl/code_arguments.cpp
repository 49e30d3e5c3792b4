#include "tspl/code_arguments.h"

#include <algorithm>
#include <array>
#include <utility>

#include "tspl/text.h"

namespace tspl {
namespace {

using Escape = std::pair<std::string_view, char>;
constexpr std::array sEscapes = {Escape{"\\[\"]", '"'}, Escape{"\\[R]", '\r'},
                                 Escape{"\\[L]", '\n'}};

const Escape* escapeAt(std::string_view text) {
    const auto* found = std::find_if(sEscapes.begin(), sEscapes.end(), [&](const Escape& escape) {
        return text.starts_with(escape.first);
    });
    return found == sEscapes.end() ? nullptr : found;
}

bool isLetter(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

std::string shown(std::string_view text) {
    return '"' + printable(text) + '"';
}

// The text up to the closing mark; the rest of the argument stays in `argument`.
std::string takeText(std::string_view& argument) {
    std::string text;
    argument.remove_prefix(1);
    while (!argument.empty() && argument.front() != '"') {
        const Escape* escape = escapeAt(argument);
        text += escape == nullptr ? argument.front() : escape->second;
        argument.remove_prefix(escape == nullptr ? 1 : escape->first.size());
    }
    argument.remove_prefix(std::min<std::size_t>(argument.size(), 1));
    return text;
}

}  // namespace

std::int32_t numberFrom(const std::string& argument, std::int32_t least, std::int32_t most,
                        std::string_view what) {
    const auto number = parseInteger(argument);
    if (!number || *number < least || *number > most) {
        throw CodeFault(std::string(what) + " is " + std::to_string(least) + " to " +
                        std::to_string(most) + ", not " + shown(argument));
    }
    return *number;
}

int rotationFrom(const std::string& argument) {
    const auto angle = parseInteger(argument).value_or(-1);
    if (angle != 0 && angle != 90 && angle != 180 && angle != 270) {
        throw CodeFault("the rotation is 0, 90, 180 or 270, not " + shown(argument));
    }
    return angle;
}

std::string contentFrom(const std::string& argument) {
    const bool isVariable =
        !argument.empty() && (isLetter(argument.front()) || argument.front() == '@');
    if (isVariable) {
        throw CodeNotDrawn("the value of " + printable(argument) + " is not known");
    }
    if (!argument.starts_with('"')) {
        throw CodeFault("the content is not within quotation marks: " + shown(argument));
    }
    std::string_view rest = argument;
    std::string text = takeText(rest);
    rest = trimmed(rest);
    if (rest.starts_with('+')) {
        throw CodeNotDrawn("the value of " + printable(rest.substr(1)) + " is not known");
    }
    if (!rest.empty()) {
        throw CodeFault("there is text behind the closing quotation mark: " + shown(rest));
    }
    if (text.empty()) {
        throw CodeFault("there is nothing to encode");
    }
    return text;
}

std::string nameFrom(const std::string& argument) {
    const bool marked =
        argument.size() >= 2 && argument.starts_with('"') && argument.ends_with('"');
    return upperCase(marked ? std::string_view(argument).substr(1, argument.size() - 2)
                            : std::string_view(argument));
}

CodeOption optionFrom(const std::string& argument) {
    if (argument.empty()) {
        return {};
    }
    return {upperCase(argument).front(), argument.substr(1)};
}

CodeFault unknownOption(const std::string& argument) {
    return CodeFault("it does not take " + shown(argument));
}

}  // namespace tspl
