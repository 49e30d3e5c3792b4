#pragma once

#include <string>
#include <vector>

#include "tests/reference/page.h"

/// The pages that libcups makes of a stream of bytes, up to the first that a filter must end at:
/// one of another depth than 8 bits, without rows or bytes, or with sizes that contradict each
/// other. Of pages larger than the stream only the header is looked at.
std::vector<reference::Page> pagesIn(const std::string& stream);
