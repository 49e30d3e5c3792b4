#pragma once

#include <span>
#include <string>
#include <string_view>

#include "sizes/command/own_size.h"

namespace sizes {

/// A description of this driver with the sizes in front of its own ones and the first one as its
/// default. A size that it has under the same name is replaced.
/// @throw Failure when it is none for the resolution, or none that CUPS would take
std::string ownDescription(std::string_view ppd, std::span<const OwnSize> sizes, int dpi);

}  // namespace sizes
