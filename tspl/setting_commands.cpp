#include "tspl/command_rules.h"

#include <charconv>
#include <cmath>

#include "tspl/length.h"
#include "tspl/text.h"

namespace tspl {
namespace {

// Whoever writes SIZE 40,30 means millimetres, and the printer takes them for inches.
constexpr double widestHeadInches = 12;

void setSize(Printer& printer, const Command& command) {
    const auto width = parseLength(command.arguments[0]);
    const auto height =
        command.arguments.size() == 2 ? parseLength(command.arguments[1]) : std::nullopt;
    const bool isDrawn = width && printer.label.setSize({*width, height});
    if (width && width->unit == Unit::Inch && width->value > widestHeadInches) {
        printer.complain(command,
                         "no printer is as wide as this label; a number alone is in "
                         "inches: " +
                             quoted(command));
    } else if (width && !isDrawn) {
        printer.complain(command, "a label of this size is too large to draw: " + quoted(command));
    }
}

void setReference(Printer& printer, const Command& command) {
    printer.reference = {integer(command, 0), integer(command, 1)};
}

void setShift(Printer& printer, const Command& command) {
    const bool both = command.arguments.size() == 2;
    printer.placement.shiftX = both ? integer(command, 0) : 0;
    printer.placement.shiftY = integer(command, both ? 1 : 0);
}

void setDirection(Printer& printer, const Command& command) {
    const std::int32_t direction = integer(command, 0);
    const std::int32_t mirror = command.arguments.size() == 2 ? integer(command, 1) : 0;
    if (direction < 0 || direction > 1 || mirror < 0 || mirror > 1) {
        printer.complain(command, "DIRECTION takes 0 and 1");
        return;
    }
    printer.placement.turned = direction == 1;
    printer.placement.mirrored = mirror == 1;
}

void checkSpeed(Printer& printer, const Command& command) {
    const std::string& text = command.arguments[0];
    double speed = 0;
    const auto number = std::from_chars(text.data(), text.data() + text.size(), speed);
    if (number.ec != std::errc() || number.ptr != text.data() + text.size() ||
        !std::isfinite(speed) || speed <= 0) {
        printer.complain(command, "SPEED does not take \"" + printable(text) + '"');
    }
}

// 15 is the darkest on most printers; some go on to 30.
void checkDensity(Printer& printer, const Command& command) {
    constexpr std::int32_t darkest = 30;
    const std::int32_t density = integer(command, 0);
    if (density < 0 || density > darkest) {
        printer.complain(command, "DENSITY does not take " + std::to_string(density));
    }
}

// Countries have the numbers by which they are called on the telephone.
void checkCountry(Printer& printer, const Command& command) {
    checkRange(printer, command, 0, 1, 999, "the number");
}

void set(Printer& printer, const Command& command) {
    if (const auto fault = obeySet(command, printer.afterLabel)) {
        printer.complain(command, *fault);
    }
}

void setCodePage(Printer& printer, const Command& command) {
    const std::string& name = command.arguments[0];
    const auto codePage = CodePage::named(name);
    if (!codePage) {
        printer.complain(command, "CODEPAGE does not take \"" + printable(name) + '"');
        return;
    }
    printer.codePage = *codePage;
}

constexpr CommandRule rules[] = {
    {"SIZE", 1, 2, ArgumentKind::Lengths, Effect::Obeyed, setSize},
    {"GAP", 1, 2, ArgumentKind::Lengths, Effect::NoMark},
    {"BLINE", 1, 2, ArgumentKind::Lengths, Effect::NoMark},
    {"OFFSET", 1, 1, ArgumentKind::SignedLengths, Effect::NoMark},
    {"REFERENCE", 2, 2, ArgumentKind::Integers, Effect::Obeyed, setReference},
    {"SHIFT", 1, 2, ArgumentKind::Integers, Effect::Obeyed, setShift},
    {"DIRECTION", 1, 2, ArgumentKind::Integers, Effect::Obeyed, setDirection},
    {"SPEED", 1, 1, ArgumentKind::Any, Effect::Obeyed, checkSpeed},
    {"DENSITY", 1, 1, ArgumentKind::Integers, Effect::Obeyed, checkDensity},
    {"SET", 1, anyNumber, ArgumentKind::Any, Effect::Obeyed, set},
    {"COUNTRY", 1, 1, ArgumentKind::Integers, Effect::NoMark, checkCountry},
    {"CODEPAGE", 1, 1, ArgumentKind::Any, Effect::Obeyed, setCodePage},
};

}  // namespace

std::span<const CommandRule> settingCommands() {
    return rules;
}

}  // namespace tspl
