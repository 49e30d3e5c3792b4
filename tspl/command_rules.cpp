#include "tspl/command_rules.h"

#include <algorithm>
#include <limits>

#include "tspl/length.h"
#include "tspl/text.h"

namespace tspl {
namespace {

constexpr std::size_t anyNumber = std::numeric_limits<std::size_t>::max();

constexpr CommandRule sRules[] = {
    // The label and how it is printed.
    {"SIZE", 2, 2, ArgumentKind::Lengths, Effect::Obeyed},
    {"GAP", 2, 2, ArgumentKind::Lengths, Effect::NoMark},
    {"BLINE", 2, 2, ArgumentKind::Lengths, Effect::NoMark},
    {"OFFSET", 1, 1, ArgumentKind::SignedLengths, Effect::NoMark},
    {"REFERENCE", 2, 2, ArgumentKind::Integers, Effect::Obeyed},
    {"SHIFT", 1, 2, ArgumentKind::Integers, Effect::Obeyed},
    {"DIRECTION", 1, 2, ArgumentKind::Integers, Effect::Obeyed},
    {"SPEED", 1, 1, ArgumentKind::Any, Effect::Obeyed},
    {"DENSITY", 1, 1, ArgumentKind::Integers, Effect::Obeyed},
    {"SET", 1, anyNumber, ArgumentKind::Any, Effect::Obeyed},
    {"COUNTRY", 1, 1, ArgumentKind::Any, Effect::NoMark},
    {"CODEPAGE", 1, 1, ArgumentKind::Any, Effect::NoMark},
    // Drawing.
    {"CLS", 0, 0, ArgumentKind::Any, Effect::Obeyed},
    {"BAR", 4, 4, ArgumentKind::Integers, Effect::Obeyed},
    {"BOX", 5, 6, ArgumentKind::Integers, Effect::Obeyed},
    {"ERASE", 4, 4, ArgumentKind::Integers, Effect::Obeyed},
    {"REVERSE", 4, 4, ArgumentKind::Integers, Effect::Obeyed},
    {"TEXT", 6, anyNumber, ArgumentKind::Any, Effect::NotDrawn},
    {"BLOCK", 8, anyNumber, ArgumentKind::Any, Effect::NotDrawn},
    {"BARCODE", 8, anyNumber, ArgumentKind::Any, Effect::NotDrawn},
    {"QRCODE", 6, anyNumber, ArgumentKind::Any, Effect::NotDrawn},
    {"DMATRIX", 4, anyNumber, ArgumentKind::Any, Effect::NotDrawn},
    {"PDF417", 4, anyNumber, ArgumentKind::Any, Effect::NotDrawn},
    {"MPDF417", 4, anyNumber, ArgumentKind::Any, Effect::NotDrawn},
    {"AZTEC", 4, anyNumber, ArgumentKind::Any, Effect::NotDrawn},
    {"MAXICODE", 3, anyNumber, ArgumentKind::Any, Effect::NotDrawn},
    {"CODABLOCK", 4, anyNumber, ArgumentKind::Any, Effect::NotDrawn},
    {"RSS", 4, anyNumber, ArgumentKind::Any, Effect::NotDrawn},
    {"TLC39", 4, anyNumber, ArgumentKind::Any, Effect::NotDrawn},
    {"CIRCLE", 4, 4, ArgumentKind::Integers, Effect::NotDrawn},
    {"ELLIPSE", 5, 5, ArgumentKind::Integers, Effect::NotDrawn},
    {"DIAGONAL", 5, 5, ArgumentKind::Integers, Effect::NotDrawn},
    {"PUTBMP", 3, anyNumber, ArgumentKind::Any, Effect::NotDrawn},
    {"PUTPCX", 3, anyNumber, ArgumentKind::Any, Effect::NotDrawn},
    // Printing and moving the paper.
    {"PRINT", 1, 2, ArgumentKind::Integers, Effect::Obeyed},
    {"FEED", 1, 1, ArgumentKind::Integers, Effect::NoMark},
    {"BACKFEED", 1, 1, ArgumentKind::Integers, Effect::NoMark},
    {"BACKUP", 1, 1, ArgumentKind::Integers, Effect::NoMark},
    {"FORMFEED", 0, 0, ArgumentKind::Any, Effect::NoMark},
    {"HOME", 0, 0, ArgumentKind::Any, Effect::NoMark},
    {"CUT", 0, 0, ArgumentKind::Any, Effect::NoMark},
    {"LIMITFEED", 1, 3, ArgumentKind::Lengths, Effect::NoMark},
    {"GAPDETECT", 0, 2, ArgumentKind::Any, Effect::NoMark},
    {"BLINEDETECT", 0, 2, ArgumentKind::Any, Effect::NoMark},
    {"AUTODETECT", 0, 2, ArgumentKind::Any, Effect::NoMark},
    // The printer itself and its memory.
    {"EOP", 0, 0, ArgumentKind::Any, Effect::Obeyed},
    {"EOJ", 0, 0, ArgumentKind::Any, Effect::NoMark},
    {"DELAY", 1, 1, ArgumentKind::Integers, Effect::NoMark},
    {"SOUND", 2, 2, ArgumentKind::Integers, Effect::NoMark},
    {"DISPLAY", 1, 1, ArgumentKind::Any, Effect::NoMark},
    {"SELFTEST", 0, 1, ArgumentKind::Any, Effect::NoMark},
    {"INITIALPRINTER", 0, 0, ArgumentKind::Any, Effect::NoMark},
    {"DOWNLOAD", 1, anyNumber, ArgumentKind::Any, Effect::Obeyed},
    {"FILES", 0, 0, ArgumentKind::Any, Effect::NoMark},
    {"KILL", 1, 2, ArgumentKind::Any, Effect::NoMark},
    {"MOVE", 0, 0, ArgumentKind::Any, Effect::NoMark},
    {"RUN", 1, 1, ArgumentKind::Any, Effect::NoMark},
    {"REM", 0, anyNumber, ArgumentKind::Any, Effect::NoMark},
    {"OUT", 1, anyNumber, ArgumentKind::Any, Effect::NoMark},
};

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
    const auto* rule = std::find_if(std::begin(sRules), std::end(sRules),
                                    [&](const CommandRule& r) { return r.name == name; });
    return rule == std::end(sRules) ? nullptr : rule;
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

}  // namespace tspl
