#include "sizes/dot_grid.h"

#include <algorithm>
#include <cmath>

namespace sizes {
namespace {

constexpr int dotsPerByte = 8;

// Lengths are kept in mm, and an inch size that lies just on half a dot comes out a hair below.
constexpr double hairOfADot = 1e-6;

// Of a length that is no number nothing is left, and no more than there can be of a long one.
double withinReason(double millimetres) {
    return millimetres > 0 ? std::min(millimetres, longestLength) : 0;
}

double inDots(double millimetres, int dpi) {
    return withinReason(millimetres) / millimetresPerInch * dpi;
}

double inPoints(int dots, int dpi) {
    return dots * pointsPerInch / dpi;
}

bool isTooSmall(const DotSize& dots) {
    return dots.columns < fewestDots || dots.rows < fewestDots;
}

}  // namespace

int dotsAcross(double millimetres, int dpi) {
    const double dots = inDots(millimetres + edgeTolerance, dpi) + hairOfADot;
    return dotsPerByte * static_cast<int>(std::floor(dots / dotsPerByte));
}

int dotsDown(double millimetres, int dpi) {
    return static_cast<int>(std::floor(inDots(millimetres, dpi) + 0.5 + hairOfADot));
}

DotSize dotsOf(const NominalSize& size, int dpi) {
    const int columns = dotsAcross(size.width, dpi);
    const int rows = dotsDown(size.height, dpi);
    return {columns, size.width <= size.height ? std::max(rows, columns) : rows};
}

NominalSize printedSize(const DotSize& dots, int dpi) {
    return inMillimetres(dots.columns * millimetresPerInch / dpi,
                         dots.rows * millimetresPerInch / dpi);
}

PointSize labelPoints(const NominalSize& size) {
    constexpr double pointsPerMillimetre = pointsPerInch / millimetresPerInch;
    return {size.width * pointsPerMillimetre, size.height * pointsPerMillimetre};
}

std::optional<LabelPage> exactPage(const NominalSize& size, int dpi) {
    const DotSize dots = dotsOf(size, dpi);
    if (isTooSmall(dots)) {
        return std::nullopt;
    }
    return LabelPage{dots, {inPoints(dots.columns, dpi), inPoints(dots.rows, dpi)}};
}

}  // namespace sizes
