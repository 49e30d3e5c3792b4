#include "tspl/code_arguments.h"

#include "tspl/text.h"
#include "tspl/text_argument.h"

namespace tspl {

std::int32_t numberFrom(const std::string& argument, std::int32_t least, std::int32_t most,
                        std::string_view what) {
    const auto number = parseInteger(argument);
    if (!number || *number < least || *number > most) {
        throw CodeFault(std::string(what) + " is " + std::to_string(least) + " to " +
                        std::to_string(most) + ", not " + inQuotes(argument));
    }
    return *number;
}

int rotationFrom(const std::string& argument) {
    const auto angle = parseInteger(argument).value_or(-1);
    if (angle != 0 && angle != 90 && angle != 180 && angle != 270) {
        throw CodeFault("the rotation is 0, 90, 180 or 270, not " + inQuotes(argument));
    }
    return angle;
}

std::string contentFrom(const std::string& argument) {
    const auto text = parseTextArgument(argument);
    if (isExpression(argument)) {
        const auto unknown = text ? trimmed(std::string_view(text->behind).substr(1)) : argument;
        throw CodeNotDrawn("the value of " + printable(unknown) + " is not known");
    }
    if (!text) {
        throw CodeFault("the content is not within quotation marks: " + inQuotes(argument));
    }
    if (!text->behind.empty()) {
        throw CodeFault("there is text behind the closing quotation mark: " +
                        inQuotes(text->behind));
    }
    if (text->bytes.empty()) {
        throw CodeFault("there is nothing to encode");
    }
    return text->bytes;
}

std::string nameFrom(const std::string& argument) {
    return upperCase(nameOf(argument));
}

std::span<const std::string> optionsBefore(const Command& command, std::size_t first) {
    const std::size_t content = command.arguments.size() - 1;
    const std::span all(command.arguments);
    return first < content ? all.subspan(first, content - first) : std::span<const std::string>();
}

CodeOption optionFrom(const std::string& argument) {
    if (argument.empty()) {
        return {};
    }
    return {upperCase(argument).front(), argument.substr(1)};
}

CodeFault unknownOption(const std::string& argument) {
    return CodeFault("it does not take " + inQuotes(argument));
}

}  // namespace tspl
