#pragma once

#include <string_view>

namespace tspl {

/// What a stream is whose first line begins like another printer language or file format: its name
/// for people; empty when it may be TSPL.
std::string_view foreignFormat(std::string_view firstLine);

/// As above, of a line behind TSPL. The single letters of EPL are mistakes in TSPL as well: they
/// name nothing here.
std::string_view foreignBeginning(std::string_view line);

}  // namespace tspl
