#include "bench/raster_file.h"

#include <cups/raster.h>
#include <fcntl.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>

namespace {

[[noreturn]] void fail(const std::string& path) {
    std::perror(path.c_str());
    std::exit(EXIT_FAILURE);
}

cups_page_header2_t headerOf(const RasterForm& form) {
    cups_page_header2_t header{};
    header.cupsWidth = form.size.width;
    header.cupsHeight = form.size.height;
    header.cupsBitsPerPixel = form.bitsPerPixel;
    header.cupsBitsPerColor = form.bitsPerPixel;
    header.cupsBytesPerLine = (form.size.width * form.bitsPerPixel + 7) / 8;
    header.cupsColorSpace = CUPS_CSPACE_K;
    header.cupsNumColors = 1;
    header.HWResolution[0] = header.HWResolution[1] = 300;
    header.NumCopies = 1;
    return header;
}

std::vector<std::uint8_t> thresholded(const std::vector<std::uint8_t>& page, PageSize size) {
    const std::size_t rowBytes = (size.width + 7) / 8;
    std::vector<std::uint8_t> bits(rowBytes * size.height);
    for (std::size_t i = 0; i < page.size(); ++i) {
        const std::size_t x = i % size.width;
        std::uint8_t& byte = bits[i / size.width * rowBytes + x / 8];
        byte = static_cast<std::uint8_t>(byte | (page[i] > 128 ? 0x80 >> x % 8 : 0));
    }
    return bits;
}

}  // namespace

void writeRaster(const std::string& path, const RasterForm& form) {
    std::vector<std::uint8_t> page = testPage(form.size, form.content);
    if (form.bitsPerPixel == 1) {
        page = thresholded(page, form.size);
    }
    const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    if (file < 0) {
        fail(path);
    }
    cups_raster_t* raster =
        cupsRasterOpen(file, form.compressed ? CUPS_RASTER_WRITE_COMPRESSED : CUPS_RASTER_WRITE);
    cups_page_header2_t header = headerOf(form);
    const auto size = static_cast<unsigned>(page.size());
    for (unsigned i = 0; i < form.pages; ++i) {
        cupsRasterWriteHeader2(raster, &header);
        if (cupsRasterWritePixels(raster, page.data(), size) != size) {
            fail(path);
        }
    }
    cupsRasterClose(raster);
    close(file);
}
