#pragma once

#include <cups/raster.h>

/// Whether the rows of a page can hold its pixels and the whole page can be addressed: at
/// least one byte per dot in a row, and bytes per line × lines within 32 bits. libcups hands
/// over headers that do not keep to this.
bool hasPrintableGeometry(const cups_page_header2_t& header);

/// Size of a page in bytes.
unsigned pageBytes(const cups_page_header2_t& header);
