#include "sizes/findable_points.h"

#include <cmath>

#include "sizes/nominal_size.h"

namespace sizes {
namespace {

constexpr int sixteenths = 16;
constexpr double reachOfRounding = 0.45;
constexpr double littleMore = 0.03;
constexpr double looseness = 0.0099;

double dotsOf(int points16, int dpi) {
    return points16 / 16.0 * dpi / pointsPerInch;
}

double points16Of(double dots, int dpi) {
    return dots * pointsPerInch / dpi * sixteenths;
}

bool isFoundByItsWholePoints(int points16) {
    return static_cast<double>(points16 % sixteenths) / points16 < looseness;
}

}  // namespace

std::optional<double> findablePoints(int dots, int dpi) {
    const int lowest = static_cast<int>(std::ceil(points16Of(dots - reachOfRounding, dpi)));
    const int highest = static_cast<int>(std::floor(points16Of(dots + reachOfRounding, dpi)));
    std::optional<int> nearest;
    for (int points16 = lowest; points16 <= highest; ++points16) {
        if (!isFoundByItsWholePoints(points16)) {
            continue;
        }
        const double above = dotsOf(points16, dpi) - dots;
        if (above >= littleMore) {
            return points16 / 16.0;
        }
        if (!nearest || std::abs(above) < std::abs(dotsOf(*nearest, dpi) - dots)) {
            nearest = points16;
        }
    }
    return nearest ? std::optional(*nearest / 16.0) : std::nullopt;
}

}  // namespace sizes
