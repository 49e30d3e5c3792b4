#pragma once

#include <span>
#include <string>

#include "sizes/command/own_size.h"

namespace sizes {

/// A line for people for every size: its name, its dots and their millimetres.
std::string sizeListing(std::span<const OwnSize> sizes, int dpi);

/// The media lines of a model, for kesto-tspl.drv.
std::string mediaLines(std::span<const OwnSize> sizes);

}  // namespace sizes
