#pragma once

#include <string_view>

#include "tspl/code_symbol.h"

namespace tspl {

/// A Code 128 whose subsets the content itself chooses (ISO/IEC 15417): an exclamation mark and
/// three digits stand for the value 096 to 105, among them 099 to 101 for the subsets and 103 to
/// 105 for the start. Without a start it begins in subset B. Throws CodeFault for what the chosen
/// subset does not have.
CodeSymbol manualCode128(std::string_view content);

}  // namespace tspl
