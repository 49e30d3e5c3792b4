#pragma once

#include <vector>

#include "intake/sheet/ink_map.h"
#include "intake/sheet/rectangle.h"
#include "sizes/nominal_size.h"

namespace intake::sheet {

/// Finds the labels on a page, in the order in which they are read: frames, and blocks of ink that
/// are set apart by white, of the shape and size that fitOf takes for a label. What is returned is
/// where to cut, around the ink by a little of the white beside it, as far as there is any and the
/// part does not become larger than the label by that. What is larger by no more than the edges of
/// dots and half of the line around it is cut to the label's size, so that it need not be scaled;
/// a page of the label's size would have lost as much. What touches a frame from outside is not in
/// it. Nothing when nothing like a label is there.
std::vector<Rectangle> findLabels(const GreyPage& page, const sizes::PointSize& label);

}  // namespace intake::sheet
