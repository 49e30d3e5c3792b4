#pragma once

#include <vector>

#include "intake/sheet/ink_map.h"

namespace intake::sheet {

/// The straight lines of a page that frames may be made of.
struct FrameLines {
    std::vector<DotRectangle> across;
    std::vector<DotRectangle> down;
};

/// Finds lines of ink of at least so many dots, with no gap of more than `widestGap` dots: the
/// longest ones of each direction, not more than 64. Lines in rows or columns beside each other,
/// over each other by most of their length, are one.
FrameLines findFrameLines(const InkMap& ink, int shortest, int widestGap);

}  // namespace intake::sheet
