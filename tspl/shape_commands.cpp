#include "tspl/command_rules.h"

#include <algorithm>

namespace tspl {
namespace {

Area areaOf(const Command& command) {
    return {integer(command, 0), integer(command, 1), integer(command, 2), integer(command, 3)};
}

void clear(Printer& printer, const Command& /*command*/) {
    printer.label.clear();
}

template <void (DotCanvas::*change)(const Area&)>
void changeArea(Printer& printer, const Command& command) {
    const Area area = printer.placed(areaOf(command));
    if (area.width <= 0 || area.height <= 0) {
        printer.complain(command, command.name + " without an extent: " + quoted(command));
        return;
    }
    (printer.label.canvas().*change)(area);
}

// The frame lies within the box from corner to corner; round corners are drawn square.
void drawBox(Printer& printer, const Command& command) {
    const Area corners = areaOf(command);
    const std::int64_t width = corners.width - corners.x;
    const std::int64_t height = corners.height - corners.y;
    const std::int64_t thick = std::min<std::int64_t>({integer(command, 4), width, height});
    if (thick <= 0) {
        printer.complain(command, "BOX without an extent: " + quoted(command));
        return;
    }
    if (command.arguments.size() > 5 && integer(command, 5) != 0) {
        printer.remark(command, "the round corners of BOX are drawn square");
    }
    const std::int64_t between = std::max<std::int64_t>(height - 2 * thick, 0);
    const std::int64_t lower = std::max(height - thick, thick);
    DotCanvas& canvas = printer.label.canvas();
    canvas.fill(printer.placed({corners.x, corners.y, width, thick}));
    canvas.fill(printer.placed({corners.x, corners.y + lower, width, height - lower}));
    canvas.fill(printer.placed({corners.x, corners.y + thick, thick, between}));
    canvas.fill(
        printer.placed({corners.x + std::max(width - thick, thick), corners.y + thick,
                        std::min(thick, std::max<std::int64_t>(width - thick, 0)), between}));
}

constexpr CommandRule rules[] = {
    {"CLS", 0, 0, ArgumentKind::Any, Effect::Obeyed, clear},
    {"BAR", 4, 4, ArgumentKind::Integers, Effect::Obeyed, changeArea<&DotCanvas::fill>},
    {"BOX", 5, 6, ArgumentKind::Integers, Effect::Obeyed, drawBox},
    {"ERASE", 4, 4, ArgumentKind::Integers, Effect::Obeyed, changeArea<&DotCanvas::erase>},
    {"REVERSE", 4, 4, ArgumentKind::Integers, Effect::Obeyed, changeArea<&DotCanvas::invert>},
    {"CIRCLE", 4, 4, ArgumentKind::Integers, Effect::NotDrawn},
    {"ELLIPSE", 5, 5, ArgumentKind::Integers, Effect::NotDrawn},
    {"DIAGONAL", 5, 5, ArgumentKind::Integers, Effect::NotDrawn},
};

}  // namespace

std::span<const CommandRule> shapeCommands() {
    return rules;
}

}  // namespace tspl
