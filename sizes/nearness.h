#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string_view>

#include "sizes/dot_grid.h"
#include "sizes/nominal_size.h"

namespace sizes {

/// How far a size that is meant may be from the one that is asked for, in mm, either way.
inline constexpr double nearTolerance = 1;

/// A size that a queue offers. Clients ask for it under the size of its label or, having only
/// the page's dimensions, under those.
struct OfferedSize {
    NominalSize label;
    NominalSize page;
};

/// A size of a description: its name there, from which the label's size is read where it holds
/// one, and its page.
OfferedSize offeredSize(std::string_view name, const PointSize& page);

/// Which of some sizes is meant, and whether with width and height swapped.
struct NearSize {
    std::size_t index = 0;
    bool turned = false;
    bool exact = false;  ///< the very size, but for what CUPS rounds away
};

/// The offered size that `wanted` means: the same size upright, the same size turned, else the
/// nearest upright one or the nearest turned one, within the tolerance in both directions. Of
/// sizes equally near the first one.
std::optional<NearSize> nearestSize(std::span<const OfferedSize> offered,
                                    const NominalSize& wanted);

/// Whether two pages are within 5 points of each other in both directions, upright or turned:
/// CUPS may then take one for the other, so no description may offer both.
bool areAlike(const PointSize& one, const PointSize& other);

}  // namespace sizes
