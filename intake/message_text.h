#pragma once

#include <string>
#include <string_view>

namespace intake {

/// A text from outside for a line of the log: without control characters, and cut when it is long.
std::string printable(std::string_view text);

}  // namespace intake
