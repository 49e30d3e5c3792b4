#include "tspl/label_size.h"

#include <cmath>

namespace tspl {
namespace {

constexpr int sPrinterDpi[] = {203, 300, 600};

// What is called 203 dpi is 8 dots to the millimetre: a label of 150 mm may have 1200 rows, and
// one of 97.5 mm 780. Other lengths were worked out from dots and a resolution.
std::optional<std::int64_t> metricDots(const Length& length, int dpi) {
    constexpr int metricDpi = 203;
    constexpr double dotsPerMillimetre = 8;
    const double dots = length.value * dotsPerMillimetre;
    if (dpi != metricDpi || length.unit != Unit::Millimetre || dots != std::floor(dots)) {
        return std::nullopt;
    }
    return std::llround(dots);
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
    const double dots = lengthInDots(length, dpi);
    // Bytes of a picture may reach seven dots over its edge.
    constexpr std::int64_t dotsPerByte = 8;
    const bool endsAtEdge = std::abs(end - std::llround(dots)) < dotsPerByte;
    if (const auto metric = metricDots(length, dpi); metric && (end == *metric || !endsAtEdge)) {
        return *metric;
    }
    // The decimals were rounded from a number that itself is no exact one.
    constexpr double slack = 0.001;
    if (std::abs(static_cast<double>(end) - dots) <= precisionInDots(length, dpi) + slack) {
        return end;
    }
    return std::llround(dots);
}

}  // namespace tspl
