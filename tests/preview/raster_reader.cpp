#include "tests/preview/raster_reader.h"

#include <cups/raster.h>
#include <fcntl.h>
#include <unistd.h>

#include <stdexcept>

namespace {

reference::Page readPage(cups_raster_t* raster, const cups_page_header2_t& header) {
    reference::Page page;
    page.header.width = header.cupsWidth;
    page.header.height = header.cupsHeight;
    page.header.bytesPerLine = header.cupsBytesPerLine;
    page.header.bitsPerPixel = header.cupsBitsPerPixel;
    page.header.xDpi = header.HWResolution[0];
    page.header.yDpi = header.HWResolution[1];
    page.header.copies = header.NumCopies;
    page.rows.resize(std::size_t{header.cupsBytesPerLine} * header.cupsHeight);
    const auto size = static_cast<unsigned>(page.rows.size());
    if (cupsRasterReadPixels(raster, page.rows.data(), size) != size) {
        throw std::runtime_error("the page's pixels are cut off");
    }
    return page;
}

}  // namespace

std::vector<reference::Page> readRaster(const std::string& path) {
    const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    cups_raster_t* raster = file == -1 ? nullptr : cupsRasterOpen(file, CUPS_RASTER_READ);
    if (raster == nullptr) {
        throw std::runtime_error("not a raster file: " + path);
    }
    std::vector<reference::Page> pages;
    cups_page_header2_t header;
    while (cupsRasterReadHeader2(raster, &header) != 0) {
        pages.push_back(readPage(raster, header));
    }
    cupsRasterClose(raster);
    close(file);
    return pages;
}
