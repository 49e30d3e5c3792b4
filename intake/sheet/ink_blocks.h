#pragma once

#include <vector>

#include "intake/sheet/ink_map.h"

namespace intake::sheet {

/// A block of ink and the white around it.
struct InkBlock {
    DotRectangle extent;  ///< of its ink
    bool isLasting;       ///< apart from all other ink by more white than is within it
};

/// The blocks of ink of a page: at each of a row of distances, up to two thirds of an inch, what
/// is nearer to each other is one block (single linkage, on the chessboard distance transform of
/// Rosenfeld and Pfaltz 1968). A block that stays the same over several distances is there once.
/// Lines that stand alone are no part of any block when they are as short as cut marks are.
/// Blocks whose outline would cut other ink, or with a side of fewer dots than `shortestSide`, are
/// left out.
std::vector<InkBlock> findInkBlocks(const InkMap& ink, double dotsPerPoint, int shortestSide);

}  // namespace intake::sheet
