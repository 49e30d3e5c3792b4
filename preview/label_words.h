#pragma once

#include <string>

#include "tspl/sink.h"

namespace preview {

/// "808 x 1218 dots at 203 dpi (by its bitmaps)": its size, the resolution and why it is that one.
std::string describeSize(const tspl::PrintedLabel& label);

/// "808 x 1218 dots at 203 dpi (by its bitmaps), 25.6 % burnt, printed 3 times".
std::string describe(const tspl::PrintedLabel& label);

}  // namespace preview
