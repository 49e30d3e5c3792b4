// Straight lines of one index.
#pragma once

#include <cstdint>
#include <vector>

#include "tests/reference/grey_image.h"

namespace reference {

/// A dot: column x of row y.
struct Point {
    int x;
    int y;

    bool operator==(const Point&) const = default;
};

/// The dots of the line from (startX, startY) to (endX, endY), both ends included, in the
/// order drawn. Both columns come first, then both rows.
std::vector<Point> linePoints(int startX, int endX, int startY, int endY);

/// Sets the dots of a line to `index`; dots outside the image are dropped.
void drawLine(GreyImage& image, int startX, int endX, int startY, int endY, std::uint8_t index);

}  // namespace reference
