#pragma once

#include <string>

#include "tspl/code_symbol.h"

namespace tspl {

/// Content with application identifiers as libzint takes it; sets the request's input mode. The
/// identifiers stand in parentheses, or the content begins with one of two digits. Throws
/// CodeFault when it does not. A printer leaves it to the stream whether the numbers behind them
/// are sound, and so does this.
std::string gs1Content(CodeRequest& request, const std::string& content);

}  // namespace tspl
