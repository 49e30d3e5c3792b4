#include "tspl/command_rules.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "tspl/path_drawing.h"

namespace tspl {
namespace {

Area areaOf(const Command& command) {
    return {integer(command, 0), integer(command, 1), integer(command, 2), integer(command, 3)};
}

void clear(Printer& printer, const Command& /*command*/) {
    printer.label.clear();
}

void complainOfExtent(Printer& printer, const Command& command) {
    printer.complain(command, command.name + " without an extent: " + quoted(command));
}

template <void (DotCanvas::*change)(const Area&)>
void changeArea(Printer& printer, const Command& command) {
    const Area area = printer.placed(areaOf(command));
    if (area.width <= 0 || area.height <= 0) {
        complainOfExtent(printer, command);
        return;
    }
    (printer.label.canvas().*change)(area);
    if constexpr (change == &DotCanvas::erase) {
        printer.label.noteErased(area);
    }
}

// What no label has room for would take long to draw.
bool isTooLarge(Printer& printer, const Command& command, const Area& area) {
    const bool isLarge = std::max(area.width, area.height) > largestFigure;
    if (isLarge) {
        printer.complain(command, command.name + " is larger than any label: " + quoted(command));
    }
    return isLarge;
}

// A box with corners of a radius, 0 for square ones; an ellipse where the radii are half of it.
void addOutline(cairo_t* cairo, const Area& box, double radiusX, double radiusY) {
    constexpr double quarter = 1.57079632679489661923;
    const double left = static_cast<double>(box.x) + radiusX;
    const double top = static_cast<double>(box.y) + radiusY;
    const double right = static_cast<double>(box.x + box.width) - radiusX;
    const double bottom = static_cast<double>(box.y + box.height) - radiusY;
    const std::pair<double, double> centres[] = {
        {right, top}, {right, bottom}, {left, bottom}, {left, top}};
    cairo_new_sub_path(cairo);
    double angle = -quarter;
    for (const auto& [x, y] : centres) {
        cairo_save(cairo);
        cairo_translate(cairo, x, y);
        cairo_scale(cairo, radiusX, radiusY);
        cairo_arc(cairo, 0, 0, 1, angle, angle + quarter);
        cairo_restore(cairo);
        angle += quarter;
    }
    cairo_close_path(cairo);
}

// What lies between an outline and another one `thick` dots within it.
void drawRing(Printer& printer, const Area& box, std::int64_t thick, double radiusX,
              double radiusY) {
    const Area inner = {box.x + thick, box.y + thick, box.width - 2 * thick,
                        box.height - 2 * thick};
    const auto thickness = static_cast<double>(thick);
    drawPath(printer.label.canvas(), box, [&](cairo_t* cairo) {
        cairo_set_fill_rule(cairo, CAIRO_FILL_RULE_EVEN_ODD);
        addOutline(cairo, box, radiusX, radiusY);
        if (inner.width > 0 && inner.height > 0) {
            constexpr double square = 1e-6;  // a corner of no radius is one still
            addOutline(cairo, inner, std::max(radiusX - thickness, square),
                       std::max(radiusY - thickness, square));
        }
        cairo_fill(cairo);
    });
}

void drawOval(Printer& printer, const Command& command, const Area& box, std::int64_t thick) {
    if (box.width <= 0 || box.height <= 0 || thick <= 0) {
        complainOfExtent(printer, command);
    } else if (!isTooLarge(printer, command, box)) {
        drawRing(printer, box, thick, static_cast<double>(box.width) / 2,
                 static_cast<double>(box.height) / 2);
    }
}

void drawCircle(Printer& printer, const Command& command) {
    const std::int32_t diameter = integer(command, 2);
    drawOval(printer, command,
             printer.placed({integer(command, 0), integer(command, 1), diameter, diameter}),
             integer(command, 3));
}

void drawEllipse(Printer& printer, const Command& command) {
    drawOval(printer, command, printer.placed(areaOf(command)), integer(command, 4));
}

// From corner to corner, and half of the thickness on each side.
void drawDiagonal(Printer& printer, const Command& command) {
    const Area ends = areaOf(command);  // the second point stands in the place of a size
    const std::int64_t thick = integer(command, 4);
    const Area box =
        printer.placed({std::min(ends.x, ends.width) - thick, std::min(ends.y, ends.height) - thick,
                        std::abs(ends.width - ends.x) + 1 + 2 * thick,
                        std::abs(ends.height - ends.y) + 1 + 2 * thick});
    if (thick <= 0) {
        complainOfExtent(printer, command);
        return;
    }
    if (isTooLarge(printer, command, box)) {
        return;
    }
    const Area start = printer.placed({ends.x, ends.y, 0, 0});
    const Area end = printer.placed({ends.width, ends.height, 0, 0});
    constexpr double middle = 0.5;  // of a dot
    drawPath(printer.label.canvas(), box, [&](cairo_t* cairo) {
        cairo_move_to(cairo, static_cast<double>(start.x) + middle,
                      static_cast<double>(start.y) + middle);
        cairo_line_to(cairo, static_cast<double>(end.x) + middle,
                      static_cast<double>(end.y) + middle);
        cairo_set_line_width(cairo, static_cast<double>(thick));
        cairo_set_line_cap(cairo, CAIRO_LINE_CAP_SQUARE);
        cairo_stroke(cairo);
    });
}

// Four bars, whatever the size.
void drawSquareFrame(Printer& printer, const Area& corners, std::int64_t thick) {
    const std::int64_t width = corners.width;
    const std::int64_t height = corners.height;
    const std::int64_t between = std::max<std::int64_t>(height - 2 * thick, 0);
    const std::int64_t lower = std::max(height - thick, thick);
    DotCanvas& canvas = printer.label.canvas();
    canvas.fill({corners.x, corners.y, width, thick});
    canvas.fill({corners.x, corners.y + lower, width, height - lower});
    canvas.fill({corners.x, corners.y + thick, thick, between});
    canvas.fill({corners.x + std::max(width - thick, thick), corners.y + thick,
                 std::min(thick, std::max<std::int64_t>(width - thick, 0)), between});
}

// The frame lies within the box from corner to corner.
void drawBox(Printer& printer, const Command& command) {
    const Area ends = areaOf(command);
    const Area box = printer.placed({ends.x, ends.y, ends.width - ends.x, ends.height - ends.y});
    const std::int64_t thick = std::min<std::int64_t>({integer(command, 4), box.width, box.height});
    const std::int64_t radius = command.arguments.size() > 5 ? integer(command, 5) : 0;
    if (thick <= 0) {
        complainOfExtent(printer, command);
    } else if (radius <= 0) {
        drawSquareFrame(printer, box, thick);
    } else if (!isTooLarge(printer, command, box)) {
        const double most = static_cast<double>(std::min(box.width, box.height)) / 2;
        const double fitting = std::min(static_cast<double>(radius), most);
        drawRing(printer, box, thick, fitting, fitting);
    }
}

constexpr CommandRule rules[] = {
    {"CLS", 0, 0, ArgumentKind::Any, Effect::Obeyed, clear},
    {"BAR", 4, 4, ArgumentKind::Integers, Effect::Obeyed, changeArea<&DotCanvas::fill>},
    {"BOX", 5, 6, ArgumentKind::Integers, Effect::Obeyed, drawBox},
    {"ERASE", 4, 4, ArgumentKind::Integers, Effect::Obeyed, changeArea<&DotCanvas::erase>},
    {"REVERSE", 4, 4, ArgumentKind::Integers, Effect::Obeyed, changeArea<&DotCanvas::invert>},
    {"CIRCLE", 4, 4, ArgumentKind::Integers, Effect::Obeyed, drawCircle},
    {"ELLIPSE", 5, 5, ArgumentKind::Integers, Effect::Obeyed, drawEllipse},
    {"DIAGONAL", 5, 5, ArgumentKind::Integers, Effect::Obeyed, drawDiagonal},
};

}  // namespace

std::span<const CommandRule> shapeCommands() {
    return rules;
}

}  // namespace tspl
