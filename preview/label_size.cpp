#include "preview/label_size.h"

#include <cmath>

namespace preview {
namespace {

constexpr int sPrinterDpi[] = {203, 300, 600};

}  // namespace

std::optional<int> nearestDpi(const Length& width, std::int64_t widthInDots) {
    const double dotsPerDpi = lengthInDots(width, 1);
    if (width.unit == Unit::Dot || dotsPerDpi <= 0) {
        return std::nullopt;
    }
    const double wanted = static_cast<double>(widthInDots) / dotsPerDpi;
    int nearest = sPrinterDpi[0];
    for (const int dpi : sPrinterDpi) {
        if (std::abs(dpi - wanted) < std::abs(nearest - wanted)) {
            nearest = dpi;
        }
    }
    return nearest;
}

std::int64_t wholeDots(const Length& length, int dpi, std::int64_t end) {
    const double dots = lengthInDots(length, dpi);
    // The decimals were rounded from a number that itself is no exact one.
    constexpr double slack = 0.001;
    if (std::abs(static_cast<double>(end) - dots) <= precisionInDots(length, dpi) + slack) {
        return end;
    }
    return std::llround(dots);
}

}  // namespace preview
