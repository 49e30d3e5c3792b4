#pragma once

#include "tspl/code_drawing.h"

namespace tspl {

/// Draws the 33 rows of hexagons of a MaxiCode, and the rings in their middle (ISO/IEC 16023), at
/// a resolution. The distances between hexagons are whole dots, and all hexagons are alike.
void drawMaxiCodeSymbol(CodeDrawing& drawing, const CodeSymbol& symbol, int dpi);

}  // namespace tspl
