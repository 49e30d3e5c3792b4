#pragma once

#include <cstdint>

#include "tspl/dot_canvas.h"

namespace tspl {

/// How a label's dots come to stand on the paper.
struct Placement {
    bool mirrored = false;  ///< left and right swapped, before the label is turned
    bool turned = false;    ///< by 180 degrees
    std::int64_t shiftX = 0;
    std::int64_t shiftY = 0;  ///< in dots on the paper, to the right and down
};

/// A printed label: a view of the canvas, cut to the label and turned as it is printed.
class LabelPicture {
public:
    /// `canvas` must outlive the picture. `width` and `height` in dots.
    LabelPicture(const DotCanvas& canvas, std::int64_t width, std::int64_t height, int dpi,
                 const Placement& placement)
        : canvas_(canvas), width_(width), height_(height), dpi_(dpi), placement_(placement) {}

    [[nodiscard]] std::int64_t width() const { return width_; }
    [[nodiscard]] std::int64_t height() const { return height_; }
    [[nodiscard]] int dpi() const { return dpi_; }

    /// Whether the dot at (x, y), counted from the upper left corner of the picture, is burnt.
    [[nodiscard]] bool burns(std::int64_t x, std::int64_t y) const;

    /// Turns a picture that is printed turned by 180 degrees back, with all that is on the paper:
    /// what was drawn at the top is at the top then. A mirrored label stays mirrored.
    void turnUpright();

    /// Number of burnt dots.
    [[nodiscard]] std::uint64_t burntDots() const;

private:
    const DotCanvas& canvas_;
    std::int64_t width_;
    std::int64_t height_;
    int dpi_;
    Placement placement_;
};

}  // namespace tspl
