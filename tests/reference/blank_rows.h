// Counting of blank rows at the two ends of a page.
#pragma once

#include <cstddef>

#include "tests/reference/grey_image.h"

namespace reference {

/// Which bytes of a page the counting looks at: of each of `height` rows, `stride` bytes
/// apart, the first width − skipRight bytes, or all `width` when the skip exceeds it.
struct BlankArea {
    std::size_t width = 0;
    std::size_t height = 0;
    std::size_t skipRight = 0;
    std::size_t stride = 0;
};

/// The first i for which row i + 1 holds a byte other than 0, `height` when there is none.
/// Row 0 is never looked at, and the row past the last one counts as blank.
std::size_t blankRowsFromFront(const Bytes& page, const BlankArea& area);

/// The number of rows from the first down to the last one that holds a byte other than 0.
std::size_t blankRowsFromBack(const Bytes& page, const BlankArea& area);

}  // namespace reference
