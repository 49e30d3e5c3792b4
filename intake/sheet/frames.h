#pragma once

#include <functional>
#include <vector>

#include "intake/sheet/frame_lines.h"

namespace intake::sheet {

/// Whether a frame of this outline is of interest.
using IsWanted = std::function<bool(const DotRectangle&)>;

/// The outer edges of all rectangles that four lines make, each of which runs along at least 85 %
/// of its side: corners may be round. Lines may go on beyond the corners.
std::vector<DotRectangle> findFrames(const FrameLines& lines, const IsWanted& isWanted);

}  // namespace intake::sheet
