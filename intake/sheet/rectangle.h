#pragma once

namespace intake::sheet {

/// A rectangle of a page as it is seen, in points from its upper left corner.
struct Rectangle {
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;

    double width() const { return right - left; }
    double height() const { return bottom - top; }
};

}  // namespace intake::sheet
