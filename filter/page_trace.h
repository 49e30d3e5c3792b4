#pragma once

#include <cups/raster.h>

/// Leaves the sizes of a page, in one line, in the trace file "/tmp/xxxxx.log". The file is
/// made anew for every page; a failure, or something else that stands there, is ignored.
void tracePageSize(const cups_page_header2_t& header);

/// Logs a page: its number, its copies and the raster header's fields.
void logPageHeader(int pageNumber, const cups_page_header2_t& header);
