#pragma once

#include <cstdint>

#include "tspl/dot_canvas.h"

namespace tspl {

/// Where a text stands on the label: the upper left corner of its first line, and how far the text
/// is turned clockwise about it. In a frame, x runs along the line and y from line to line.
struct TextFrame {
    std::int64_t x = 0;
    std::int64_t y = 0;
    int rotation = 0;  ///< 0, 90, 180 or 270

    /// An area of the frame, as it lies on the label.
    [[nodiscard]] Area onLabel(const Area& area) const;
};

}  // namespace tspl
