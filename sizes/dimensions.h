#pragma once

#include <optional>
#include <string_view>

#include "sizes/nominal_size.h"

namespace sizes {

/// The parts of "2.25x1.25in".
struct Dimensions {
    double width = 0;
    double height = 0;
    std::string_view unit;  ///< as written; empty without one
};

/// Takes a text apart that is nothing but two plain decimals with an "x" between them and perhaps
/// letters behind them.
std::optional<Dimensions> parseDimensions(std::string_view text);

/// The size in a unit: mm, cm, m, in, ft or pt in any case of letters. Nothing for another unit.
std::optional<NominalSize> sizeOf(const Dimensions& dimensions, std::string_view unit);

/// "w288h432", in points.
std::optional<NominalSize> parsePointsName(std::string_view name);

}  // namespace sizes
