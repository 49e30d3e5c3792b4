#include "tspl/command_rules.h"

#include <algorithm>
#include <limits>

namespace tspl {
namespace {

// The largest number where the sum is larger.
std::uint64_t sum(std::uint64_t a, std::uint64_t b) {
    return a + std::min(b, std::numeric_limits<std::uint64_t>::max() - a);
}

void reportOverhang(Printer& printer, const LabelDots& dots) {
    if (const auto widest = printer.label.widestOverhang(dots)) {
        printer.complain(widest->place, "BITMAP reaches to dot " + std::to_string(widest->end) +
                                            ", the label is " + std::to_string(dots.width) +
                                            " dots wide");
    }
    if (const auto highest = printer.label.highestOverhang(dots)) {
        printer.complain(highest->place, "BITMAP reaches to row " + std::to_string(highest->end) +
                                             ", the label is " + std::to_string(dots.height) +
                                             " rows high");
    }
}

void printLabel(Printer& printer, const Command& command, std::int32_t sets, std::int32_t copies) {
    const LabelDots dots = printer.label.dots();
    ++printer.labels;
    printer.forgetRemarks();
    if (dots.width <= 0 || dots.height <= 0) {
        printer.complain(command, "the label has no size that can be drawn");
        printer.sink().onLostLabel();
        return;
    }
    reportOverhang(printer, dots);
    const LabelPicture picture(printer.label.canvas(), dots.width, dots.height, dots.dpi,
                               printer.placement);
    const std::uint64_t onCanvas = printer.label.canvas().burntDots();
    const std::uint64_t printed = picture.burntDots();
    const std::uint64_t outside = sum(onCanvas - printed, printer.label.canvas().dotsOutside());
    if (outside > 0) {
        printer.complain(
            printer.label.overhanging(dots).value_or(command),
            outside == 1 ? "1 dot lies outside the label and is cut off"
                         : std::to_string(outside) + " dots lie outside the label and are cut off");
    }
    if (printed == 0 && outside == 0 && !printer.label.lacksMarks()) {
        printer.complain(command, "the label is blank");
    }
    printer.sink().onLabel(
        {printer.labels, sets, copies, picture, dots.dpiSource, printer.placement});
}

void print(Printer& printer, const Command& command) {
    const std::int32_t sets = integer(command, 0);
    const std::int32_t copies = command.arguments.size() == 2 ? integer(command, 1) : 1;
    if (sets < 1 || copies < 1) {
        printer.complain(command, quoted(command) + " prints nothing");
        return;
    }
    if (!printer.afterLabel.isBalanced()) {
        printer.complain(command, "more than one of SET TEAR, SET PEEL and SET CUTTER is on");
    }
    printLabel(printer, command, sets, copies);
}

// Dots by which the paper moves.
void checkDistance(Printer& printer, const Command& command) {
    checkRange(printer, command, 0, 0, 9999, "the distance");
}

constexpr CommandRule rules[] = {
    {"PRINT", 1, 2, ArgumentKind::Integers, Effect::Obeyed, print},
    {"FEED", 1, 1, ArgumentKind::Integers, Effect::NoMark, checkDistance},
    {"BACKFEED", 1, 1, ArgumentKind::Integers, Effect::NoMark, checkDistance},
    {"BACKUP", 1, 1, ArgumentKind::Integers, Effect::NoMark, checkDistance},
    {"FORMFEED", 0, 0, ArgumentKind::Any, Effect::NoMark},
    {"HOME", 0, 0, ArgumentKind::Any, Effect::NoMark},
    {"CUT", 0, 0, ArgumentKind::Any, Effect::NoMark},
    {"LIMITFEED", 1, 3, ArgumentKind::Lengths, Effect::NoMark},
    {"GAPDETECT", 0, 2, ArgumentKind::Any, Effect::NoMark},
    {"BLINEDETECT", 0, 2, ArgumentKind::Any, Effect::NoMark},
    {"AUTODETECT", 0, 2, ArgumentKind::Any, Effect::NoMark},
};

}  // namespace

std::span<const CommandRule> paperCommands() {
    return rules;
}

}  // namespace tspl
