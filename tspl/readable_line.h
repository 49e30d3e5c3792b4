#pragma once

#include <string>

#include "tspl/code_drawing.h"

namespace tspl {

/// The line beside a bar code that people read.
struct ReadableLine {
    std::string text;
    int alignment = 0;       ///< 1 at the left, 2 in the middle, 3 at the right
    std::int64_t top = 0;    ///< the row of dots below the bars
    std::int64_t width = 0;  ///< of the bars, in dots
};

/// Draws the line below the bars in a font that is like the printer's, and says so.
void drawReadableLine(Printer& printer, const Command& command, CodeDrawing& drawing,
                      const ReadableLine& line);

}  // namespace tspl
