#pragma once

#include <cairo.h>

#include <functional>

#include "tspl/dot_canvas.h"

namespace tspl {

/// Dots across the largest figure that is drawn, more than any label has.
inline constexpr std::int64_t largestFigure = 16384;

/// Burns on a canvas what `draw` paints by cairo within an area of at most `largestFigure` dots in
/// each direction. Coordinates are the canvas's dots, whose middles are at halves; nothing is
/// antialiased. `draw` is called for one strip of the area after another, so that memory does not
/// grow with it, and has to paint the same each time.
void drawPath(DotCanvas& canvas, const Area& area, const std::function<void(cairo_t*)>& draw);

}  // namespace tspl
