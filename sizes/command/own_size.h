#pragma once

#include <string>
#include <vector>

#include "sizes/dot_grid.h"
#include "sizes/nominal_size.h"

namespace sizes {

/// A size that the user wants, and the dots that are printed on it.
struct OwnSize {
    NominalSize label;
    DotSize dots;
};

/// The sizes that the user names (see parsePlainSize) at a resolution, each once.
/// @throw Failure for a size that no printer takes
std::vector<OwnSize> ownSizes(const std::vector<std::string>& names, int dpi);

}  // namespace sizes
