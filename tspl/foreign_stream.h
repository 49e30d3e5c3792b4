#pragma once

#include <string_view>

namespace tspl {

/// What a stream is whose first line begins like another printer language or file format: its name
/// for people; empty when it may be TSPL.
std::string_view foreignFormat(std::string_view firstLine);

}  // namespace tspl
