#include "tspl/label_size.h"

#include <cmath>

namespace tspl {
namespace {

constexpr int sPrinterDpi[] = {203, 300, 600};

// What is called 203 dpi is 8 dots to the millimetre: a label of 150 mm may have 1200 rows. Sizes
// with decimals were worked out from dots and a resolution.
bool isMetricEdge(const Length& length, int dpi, std::int64_t end) {
    constexpr int metricDpi = 203;
    constexpr double dotsPerMillimetre = 8;
    return dpi == metricDpi && length.unit == Unit::Millimetre && length.precision == 0 &&
           std::llround(length.value * dotsPerMillimetre) == end;
}

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
    if (isMetricEdge(length, dpi, end)) {
        return end;
    }
    const double dots = lengthInDots(length, dpi);
    // The decimals were rounded from a number that itself is no exact one.
    constexpr double slack = 0.001;
    if (std::abs(static_cast<double>(end) - dots) <= precisionInDots(length, dpi) + slack) {
        return end;
    }
    return std::llround(dots);
}

}  // namespace tspl
