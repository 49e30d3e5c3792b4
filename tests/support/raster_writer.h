#pragma once

#include <string>
#include <vector>

#include "tests/reference/page.h"

/// How a raster stream stores its pages.
enum class RasterForm {
    Plain,              ///< uncompressed, this machine's byte order
    Compressed,         ///< runs of equal rows and pixels
    SwappedPlain,       ///< uncompressed, the other byte order
    SwappedCompressed,  ///< compressed, the other byte order
};

inline constexpr RasterForm allRasterForms[] = {RasterForm::Plain, RasterForm::Compressed,
                                                RasterForm::SwappedPlain,
                                                RasterForm::SwappedCompressed};

/// Pages as a CUPS raster stream, written by libcups. Pages of 1 bit per pixel take as many
/// bytes per line as their header says.
std::string rasterStream(const std::vector<reference::Page>& pages, RasterForm form);

/// Size in bytes of a stream's opening word and of a page header.
inline constexpr std::size_t rasterSyncBytes = 4;
inline constexpr std::size_t rasterHeaderBytes = 1796;

/// Overwrites a number in the header of the stream's first page. `offset` counts bytes from
/// the start of that header, as offsetof(cups_page_header2_t, field) gives it.
void patchFirstHeader(std::string& stream, std::size_t offset, unsigned value);
