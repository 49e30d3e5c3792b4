#include "sizes/nearness.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "sizes/size_spelling.h"

namespace sizes {
namespace {

// What is lost where a size passes through hundredths of a mm or whole points.
constexpr double roundedAway = 0.011;
constexpr double pointsThatCupsForgives = 5;

double distance(const NominalSize& one, const NominalSize& other) {
    return std::max(std::abs(one.width - other.width), std::abs(one.height - other.height));
}

double distance(const OfferedSize& offered, const NominalSize& wanted) {
    return std::min(distance(offered.label, wanted), distance(offered.page, wanted));
}

struct Candidate {
    std::size_t index = 0;
    double distance = 0;
};

Candidate nearest(std::span<const OfferedSize> offered, const NominalSize& wanted) {
    Candidate best{0, distance(offered[0], wanted)};
    for (std::size_t i = 1; i < offered.size(); ++i) {
        const double found = distance(offered[i], wanted);
        if (found < best.distance) {
            best = {i, found};
        }
    }
    return best;
}

bool areWithin(double points, const PointSize& one, const PointSize& other) {
    return std::abs(one.width - other.width) <= points &&
           std::abs(one.height - other.height) <= points;
}

}  // namespace

OfferedSize offeredSize(std::string_view name, const PointSize& page) {
    const NominalSize printed = inPoints(page.width, page.height);
    return {parseSizeSpelling(name).value_or(printed), printed};
}

std::optional<NearSize> nearestSize(std::span<const OfferedSize> offered,
                                    const NominalSize& wanted) {
    if (offered.empty()) {
        return std::nullopt;
    }
    const std::array<Candidate, 2> found{nearest(offered, wanted),
                                         nearest(offered, turned(wanted))};
    for (const double limit : {roundedAway, nearTolerance}) {
        for (std::size_t turns = 0; turns < found.size(); ++turns) {
            if (found[turns].distance <= limit) {
                return NearSize{found[turns].index, turns == 1, limit == roundedAway};
            }
        }
    }
    return std::nullopt;
}

bool areAlike(const PointSize& one, const PointSize& other) {
    return areWithin(pointsThatCupsForgives, one, other) ||
           areWithin(pointsThatCupsForgives, one, {other.height, other.width});
}

}  // namespace sizes
