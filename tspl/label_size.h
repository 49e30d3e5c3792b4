#pragma once

#include <cstdint>
#include <optional>
#include <span>

#include "tspl/length.h"

namespace tspl {

/// Width and height of the label, as SIZE gives them.
struct LabelSize {
    Length width;
    std::optional<Length> height;  ///< none when SIZE gives the width alone
};

/// The resolution, of those that TSPL printers have, at which `widthInDots` fill the width best:
/// 203, 300 or 600. Nothing for a width in dots or of 0, which tells no resolution.
std::optional<int> nearestDpi(const Length& width, std::int64_t widthInDots);

/// The length in whole dots. A picture that ends (at `end` dots) as near to the edge of the
/// label as the decimals of the length can tell ends at the edge. What is called 203 dpi is 8 dots
/// to the millimetre: so many has a length of which these are a whole number, unless a picture ends
/// where 203 dots to the inch have the edge.
std::int64_t wholeDots(const Length& length, int dpi, std::int64_t end);

}  // namespace tspl
