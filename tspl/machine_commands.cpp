#include "tspl/command_rules.h"

#include <limits>

namespace tspl {
namespace {

void checkSound(Printer& printer, const Command& command) {
    checkRange(printer, command, 0, 0, 9, "the level");
    checkRange(printer, command, 1, 1, 4095, "the interval");
}

void checkDelay(Printer& printer, const Command& command) {
    checkRange(printer, command, 0, 0, std::numeric_limits<std::int32_t>::max(), "the time");
}

constexpr CommandRule rules[] = {
    {"EOJ", 0, 0, ArgumentKind::Any, Effect::NoMark},
    {"END", 0, 0, ArgumentKind::Any, Effect::NoMark},
    {"MENU", 0, 1, ArgumentKind::Any, Effect::NoMark},
    {"BEEP", 0, 2, ArgumentKind::Any, Effect::NoMark},
    {"WLAN", 1, anyNumber, ArgumentKind::Any, Effect::NoMark},
    {"NET", 1, anyNumber, ArgumentKind::Any, Effect::NoMark},
    {"NFC", 1, anyNumber, ArgumentKind::Any, Effect::NoMark},
    {"DELAY", 1, 1, ArgumentKind::Integers, Effect::NoMark, checkDelay},
    {"SOUND", 2, 2, ArgumentKind::Integers, Effect::NoMark, checkSound},
    {"DISPLAY", 1, 1, ArgumentKind::Any, Effect::NoMark},
    {"SELFTEST", 0, 1, ArgumentKind::Any, Effect::NoMark},
    {"INITIALPRINTER", 0, 0, ArgumentKind::Any, Effect::NoMark},
    {"REM", 0, anyNumber, ArgumentKind::Any, Effect::NoMark},
    {"OUT", 1, anyNumber, ArgumentKind::Any, Effect::NoMark},
};

}  // namespace

std::span<const CommandRule> machineCommands() {
    return rules;
}

}  // namespace tspl
