// The trace file that holds the sizes of the page read last.
#pragma once

#include <string>

#include "tests/reference/page.h"

namespace reference {

/// Content of the trace file after a page with this header.
std::string traceText(const PageHeader& header);

}  // namespace reference
