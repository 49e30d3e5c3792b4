#pragma once

#include <string>
#include <vector>

#include "sizes/dot_grid.h"
#include "sizes/nominal_size.h"

namespace sizes {

/// A size that the user wants, and its page.
struct OwnSize {
    NominalSize label;
    LabelPage page;
};

/// The sizes that the user names (see parsePlainSize) at a resolution, each once.
/// @throw Failure for a size that no printer takes
std::vector<OwnSize> ownSizes(const std::vector<std::string>& names, int dpi);

}  // namespace sizes
