#pragma once

#include <vector>

#include "intake/sheet/dot_rectangle.h"

namespace intake::sheet {

/// Sorts the parts of a page as it is read: rows from top to bottom, within a row from left to
/// right. Parts are in one row when each is beside the first of it for half of its height or more.
void sortAsRead(std::vector<DotRectangle>& parts);

}  // namespace intake::sheet
