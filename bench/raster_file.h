// Raster files to measure with.
#pragma once

#include <string>

#include "bench/test_page.h"

struct RasterForm {
    PageSize size;
    unsigned pages;
    PageContent content;
    unsigned bitsPerPixel;  ///< 8, or 1: ink where the grey byte is above 128
    bool compressed;
};

/// Writes a CUPS raster file in colour space K; ends the program when it cannot.
void writeRaster(const std::string& path, const RasterForm& form);
