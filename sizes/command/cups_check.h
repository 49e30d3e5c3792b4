#pragma once

#include <string>

namespace sizes {

/// Lets CUPS's own check look at a description, where it is installed: it comes with lpadmin, which
/// the description is for. So no fault of a description that was started from gets any further.
/// @throw Failure with the first fault
void requireThatCupsTakes(const std::string& ppd);

}  // namespace sizes
