#pragma once

#include <functional>
#include <vector>

#include "intake/sheet/frame_lines.h"

namespace intake::sheet {

/// A rectangle of four lines.
struct Frame {
    DotRectangle extent;  ///< its outer edges
    bool isClosed;        ///< the lines meet at the corners
};

/// Whether a frame of this outline is of interest.
using IsWanted = std::function<bool(const DotRectangle&)>;

/// All rectangles that four lines make, each of which runs along at least 85 % of its side: corners
/// may be round. Lines may go on beyond the corners. At closed corners they are no further apart
/// than `widestGap` dots.
std::vector<Frame> findFrames(const FrameLines& lines, int widestGap, const IsWanted& isWanted);

}  // namespace intake::sheet
