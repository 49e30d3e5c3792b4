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

// How far it reaches over which edges.
std::string beyond(const Extent& extent, const LabelDots& dots) {
    std::string text;
    const auto add = [&text](const char* to, std::int64_t end) {
        text += (text.empty() ? "" : " and ") + std::string(to) + std::to_string(end);
    };
    if (extent.left < 0) {
        add("from dot ", extent.left);
    }
    if (extent.top < 0) {
        add("from row ", extent.top);
    }
    if (extent.right > dots.width) {
        add("to dot ", extent.right);
    }
    if (extent.bottom > dots.height) {
        add("to row ", extent.bottom);
    }
    return text;
}

std::string ofDotsOutside(std::uint64_t outside) {
    return outside == 1 ? "1 dot lies outside the label and is cut off"
                        : std::to_string(outside) + " dots lie outside the label and are cut off";
}

// The first command bears the number of dots; a bitmap that is too large has been complained of. A
// label may be printed again and again: of the others each is spoken of once.
void reportOutside(Printer& printer, const Command& command, const LabelDots& dots,
                   std::uint64_t outside) {
    const auto overhanging = printer.label.overhanging(dots);
    const auto isNew = [](const Label::Drawn& drawn) { return !drawn.isTold; };
    const auto newest = std::find_if(overhanging.begin(), overhanging.end(), isNew);
    const auto first = newest != overhanging.end() ? newest : overhanging.begin();
    const Place place = first != overhanging.end() ? first->place : command;
    printer.complain(place, ofDotsOutside(outside));
    const auto widest = printer.label.widestOverhang(dots);
    const auto highest = printer.label.highestOverhang(dots);
    for (const Label::Drawn& drawn : overhanging) {
        const auto isOf = [&drawn](const std::optional<Label::Overhang>& overhang) {
            return overhang && overhang->place.offset == drawn.place.offset;
        };
        const bool isSpokenOf =
            drawn.isTold || drawn.place.offset == place.offset || isOf(widest) || isOf(highest);
        if (!isSpokenOf) {
            printer.complain(drawn.place, drawn.name + " reaches beyond the label, too: " +
                                              beyond(drawn.extent, dots));
        }
    }
    printer.label.noteTold(dots);
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
        reportOutside(printer, command, dots, outside);
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
