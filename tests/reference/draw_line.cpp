#include "tests/reference/draw_line.h"

#include <cstdlib>

namespace reference {

namespace {

/// Walks `run` dots along the long axis and `side` dots along the short one. Both results
/// count from 0: x along the long axis, y along the short axis.
std::vector<Point> stepsAlong(int run, int side) {
    std::vector<Point> steps;
    int error = run / 2;
    int sideStep = 0;
    for (int step = 0; step <= run; ++step) {
        steps.push_back({step, sideStep});
        error += side;
        if (error >= run) {
            error -= run;
            ++sideStep;
        }
    }
    return steps;
}

}  // namespace

std::vector<Point> linePoints(int startX, int endX, int startY, int endY) {
    const int dx = std::abs(endX - startX);
    const int dy = std::abs(endY - startY);
    const int signX = endX >= startX ? 1 : -1;
    const int signY = endY >= startY ? 1 : -1;
    std::vector<Point> points;
    if (dx >= dy) {
        for (const Point& step : stepsAlong(dx, dy)) {
            points.push_back({startX + signX * step.x, startY + signY * step.y});
        }
    } else {
        for (const Point& step : stepsAlong(dy, dx)) {
            points.push_back({startX + signX * step.y, startY + signY * step.x});
        }
    }
    return points;
}

void drawLine(GreyImage& image, int startX, int endX, int startY, int endY, std::uint8_t index) {
    for (const Point& point : linePoints(startX, endX, startY, endY)) {
        setPixel(image, point.x, point.y, index);
    }
}

}  // namespace reference
