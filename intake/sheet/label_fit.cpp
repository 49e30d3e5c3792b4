#include "intake/sheet/label_fit.h"

#include <algorithm>
#include <cmath>

namespace intake::sheet {
namespace {

using sizes::PointSize;

constexpr double sShapeTolerance = 0.08;
constexpr double sSizeTolerance = 0.25;
constexpr double sOver = 1.05;
constexpr double sMarginShare = 1.0 / 16;
constexpr double sSamePage = 5;

PointSize turned(const PointSize& size) {
    return {size.height, size.width};
}

bool isWithin(double ratio, double tolerance) {
    return std::abs(ratio - 1) <= tolerance;
}

LabelFit uprightFit(const PointSize& part, const PointSize& label) {
    const double across = part.width / label.width;
    const double down = part.height / label.height;
    LabelFit fit;
    fit.shapeError = std::abs(std::log(across / down));
    fit.isLabel = isWithin(across / down, sShapeTolerance);
    fit.isOwnSize = isWithin(across, sSizeTolerance) && isWithin(down, sSizeTolerance);
    fit.isWithin = across <= sOver && down <= sOver;
    return fit;
}

bool fillsHalf(const PointSize& part, const PointSize& page) {
    const double width = part.width + 2 * sMarginShare * page.width;
    const double height = part.height + 2 * sMarginShare * page.height;
    return 2 * width * height >= page.width * page.height;
}

bool isSame(const PointSize& a, const PointSize& b) {
    return std::abs(a.width - b.width) <= sSamePage && std::abs(a.height - b.height) <= sSamePage;
}

}  // namespace

LabelFit fitOf(const PointSize& part, const PointSize& label, const PointSize& page) {
    const LabelFit upright = uprightFit(part, label);
    LabelFit across = uprightFit(turned(part), label);
    across.isAcross = true;
    LabelFit fit = across.shapeError < upright.shapeError ? across : upright;
    fit.isLabel = fit.isLabel && (fit.isOwnSize || fillsHalf(part, page));
    return fit;
}

bool isLabelPage(const PointSize& page, const PointSize& label) {
    return isSame(page, label) || isSame(turned(page), label);
}

}  // namespace intake::sheet
