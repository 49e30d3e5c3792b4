#pragma once

#include <span>

#include "sizes/ppd_statement.h"

namespace sizes {

/// Refuses what is no description of this driver for the resolution, and what nothing can be added
/// to: a part of a description, lines that are too long for CUPS, control characters.
/// @throw Failure with the reason
void requireDescription(std::span<const PpdStatement> statements, int dpi);

}  // namespace sizes
