#pragma once

#include <cups/raster.h>

#include <string>
#include <vector>

#include "tests/reference/page.h"

/// What the filter uses of a page header.
reference::PageHeader headerFrom(const cups_page_header2_t& header);

/// The pages that libcups makes of a stream of bytes, up to the first that a filter must end at:
/// one of another depth than 8 bits, without rows or bytes, or with sizes that contradict each
/// other. Of pages of more than `mostBytes` only the header is looked at.
std::vector<reference::Page> pagesIn(const std::string& stream, std::size_t mostBytes);
