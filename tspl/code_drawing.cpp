#include "tspl/code_drawing.h"

#include <limits>

#include "tspl/code_arguments.h"

namespace tspl {
void CodeDrawing::shift(std::int64_t x, std::int64_t y) {
    shiftX_ = x;
    shiftY_ = y;
}

Area CodeDrawing::turned(const Area& area) const {
    const std::int64_t left = area.x + shiftX_;
    const std::int64_t top = area.y + shiftY_;
    switch (rotation_) {
        case 90:
            return {-top - area.height, left, area.height, area.width};
        case 180:
            return {-left - area.width, -top - area.height, area.width, area.height};
        case 270:
            return {top, -left - area.width, area.height, area.width};
        default:
            return {left, top, area.width, area.height};
    }
}

TextFrame CodeDrawing::textFrame() const {
    const Area shift = turned({0, 0, 0, 0});
    const Area origin = printer_.placed({x_ + shift.x, y_ + shift.y, 0, 0});
    return {origin.x, origin.y, rotation_};
}

void CodeDrawing::fill(const Area& area) {
    const Area dots = turned(area);
    printer_.label.canvas().fill(
        printer_.placed({x_ + dots.x, y_ + dots.y, dots.width, dots.height}));
}

void CodeDrawing::drawBars(std::span<const std::int64_t> widths, std::int64_t top,
                           std::int64_t height) {
    std::int64_t x = 0;
    bool isBar = true;
    for (const std::int64_t width : widths) {
        if (isBar && width > 0) {
            fill({x, top, width, height});
        }
        x += width;
        isBar = !isBar;
    }
}

void CodeDrawing::drawModules(const CodeSymbol& symbol, std::int64_t width, std::int64_t height) {
    std::int64_t top = 0;
    for (const CodeSymbol::Row& row : symbol.rows) {
        drawBars(scaledRuns(row, width), top, height);
        top += height;
    }
}

void CodeDrawing::drawStack(const CodeSymbol& symbol, std::int64_t width, std::int64_t height) {
    const std::int64_t line = width;
    const std::int64_t pitch = line + height;
    for (std::int64_t row = 0; row <= symbol.height(); ++row) {
        fill({0, row * pitch, symbol.width() * width, line});
    }
    std::int64_t top = line;
    for (const CodeSymbol::Row& row : symbol.rows) {
        drawBars(scaledRuns(row, width), top, height);
        top += pitch;
    }
}

CodeDrawing drawingOf(Printer& printer, const Command& command, int rotation) {
    using Number = std::numeric_limits<std::int32_t>;
    const auto x = numberFrom(command.arguments[0], Number::min(), Number::max(), "the place");
    const auto y = numberFrom(command.arguments[1], Number::min(), Number::max(), "the place");
    return {printer, x, y, rotation};
}

std::vector<std::int64_t> runsOf(const CodeSymbol::Row& row) {
    std::vector<std::int64_t> runs = {0};
    bool dark = true;
    for (const bool module : row.modules) {
        if (module != dark) {
            runs.push_back(0);
            dark = module;
        }
        ++runs.back();
    }
    return runs;
}

std::vector<std::int64_t> scaledRuns(const CodeSymbol::Row& row, std::int64_t width) {
    std::vector<std::int64_t> widths = runsOf(row);
    for (std::int64_t& run : widths) {
        run *= width;
    }
    return widths;
}

}  // namespace tspl
