#pragma once

#include <cstdint>
#include <span>

#include "tspl/code_symbol.h"
#include "tspl/dot_canvas.h"
#include "tspl/printer.h"
#include "tspl/text_frame.h"

namespace tspl {

/// The dots of a code on the label. Areas are given as if the code were not turned, from its upper
/// left corner; the code is turned clockwise about its origin, which stays where it is.
class CodeDrawing {
public:
    /// The origin in dots, before REFERENCE moves it; `rotation` is 0, 90, 180 or 270. Both the
    /// printer and what it draws on must outlive the drawing.
    CodeDrawing(Printer& printer, std::int64_t x, std::int64_t y, int rotation)
        : printer_(printer), x_(x), y_(y), rotation_(rotation) {}

    /// Moves what is drawn from now on against the origin.
    void shift(std::int64_t x, std::int64_t y);

    /// Burns every dot of an area.
    void fill(const Area& area);

    /// Draws bars and spaces in turn, which are so many dots wide each, beginning with a bar, from
    /// `top` on.
    void drawBars(std::span<const std::int64_t> widths, std::int64_t top, std::int64_t height);

    /// Draws the dark modules of a symbol, each `width` by `height` dots.
    void drawModules(const CodeSymbol& symbol, std::int64_t width, std::int64_t height);

    /// Draws the rows of a symbol with modules `width` dots wide and rows `height` dots high, a
    /// line as thick as a module is wide above, between and below them.
    void drawStack(const CodeSymbol& symbol, std::int64_t width, std::int64_t height);

    /// A frame for texts with the code's origin, shift and rotation.
    [[nodiscard]] TextFrame textFrame() const;

private:
    [[nodiscard]] Area turned(const Area& area) const;

    Printer& printer_;
    std::int64_t x_;
    std::int64_t y_;
    int rotation_;
    std::int64_t shiftX_ = 0;
    std::int64_t shiftY_ = 0;
};

/// The drawing of a command that begins with the code's origin; throws CodeFault when it does not.
CodeDrawing drawingOf(Printer& printer, const Command& command, int rotation);

/// The widths in modules of a row's bars and spaces in turn. Beginning with a bar: the first width
/// is 0 where the row begins with a space.
std::vector<std::int64_t> runsOf(const CodeSymbol::Row& row);

/// The same in dots, for modules of `width` dots.
std::vector<std::int64_t> scaledRuns(const CodeSymbol::Row& row, std::int64_t width);

}  // namespace tspl
