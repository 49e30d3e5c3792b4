#pragma once

#include <cups/raster.h>

#include <string>
#include <vector>

#include "tests/reference/page.h"

/// What the filter uses of a page header.
reference::PageHeader headerFrom(const cups_page_header2_t& header);

/// Whether a page has rows of 8 bits per pixel and its numbers contradict each other: rows that
/// cannot hold its width, or a size in bytes that does not fit 32 bits. The reference knows no such
/// pages.
bool contradictsItself(const reference::PageHeader& header);

/// The pages that libcups makes of a stream of bytes, up to the first that a filter must end at:
/// one of another depth than 8 bits, without rows or bytes, or one that contradicts itself. Of
/// pages of more than `mostBytes` only the header is looked at.
std::vector<reference::Page> pagesIn(const std::string& stream, std::size_t mostBytes);
