#include "tspl/command_rules.h"

#include "tspl/data_heads.h"
#include "tspl/text_argument.h"

namespace tspl {
namespace {

// The name stands before the size, after a memory's letter.
std::string downloadedName(const Command& command) {
    for (const std::string& argument : command.arguments) {
        if (const auto name = parseTextArgument(argument)) {
            return name->bytes;
        }
    }
    return "";
}

// DOWNLOAD "NAME" without a size: a program follows, up to EOP.
void startStoring(Printer& printer, const Command& command) {
    const std::string& last = command.arguments.back();
    const bool isProgram = last.size() > 1 && last.starts_with('"') && last.ends_with('"');
    if (isProgram) {
        printer.storingSince = command;
    } else if (parseDownloadHead(command)) {
        printer.storedFiles.add(downloadedName(command));
    } else {
        printer.complain(command,
                         "DOWNLOAD needs a name, and for a file its size: " + quoted(command));
    }
}

void endStoring(Printer& printer, const Command& /*command*/) {
    printer.storingSince.reset();
}

constexpr CommandRule rules[] = {
    {"PUTBMP", 3, anyNumber, ArgumentKind::Any, Effect::NotDrawn},
    {"PUTPCX", 3, anyNumber, ArgumentKind::Any, Effect::NotDrawn},
    {"DOWNLOAD", 1, anyNumber, ArgumentKind::Any, Effect::Obeyed, startStoring},
    {"EOP", 0, 0, ArgumentKind::Any, Effect::Obeyed, endStoring},
    {"FILES", 0, 0, ArgumentKind::Any, Effect::NoMark},
    {"KILL", 1, 2, ArgumentKind::Any, Effect::NoMark},
    {"MOVE", 0, 0, ArgumentKind::Any, Effect::NoMark},
    {"RUN", 1, 1, ArgumentKind::Any, Effect::NoMark},
};

}  // namespace

std::span<const CommandRule> fileCommands() {
    return rules;
}

}  // namespace tspl
