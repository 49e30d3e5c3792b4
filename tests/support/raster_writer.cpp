#include "tests/support/raster_writer.h"

#include <cups/raster.h>

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <span>

namespace {

using reference::Page;
using reference::PageHeader;

static_assert(sizeof(cups_page_header2_t) == rasterHeaderBytes);

cups_page_header2_t toCups(const PageHeader& header) {
    cups_page_header2_t cups{};
    cups.cupsWidth = header.width;
    cups.cupsHeight = header.height;
    cups.cupsBytesPerLine = header.bytesPerLine;
    cups.cupsBitsPerPixel = header.bitsPerPixel;
    cups.cupsBitsPerColor = header.bitsPerColor;
    cups.cupsColorOrder = static_cast<cups_order_t>(header.colorOrder);
    cups.cupsColorSpace = static_cast<cups_cspace_t>(header.colorSpace);
    cups.cupsCompression = header.compression;
    cups.cupsRowCount = header.rowCount;
    cups.cupsRowFeed = header.rowFeed;
    cups.cupsRowStep = header.rowStep;
    cups.cupsMediaType = header.mediaType;
    cups.cupsNumColors = 1;
    cups.HWResolution[0] = header.xDpi;
    cups.HWResolution[1] = header.yDpi;
    cups.NumCopies = header.copies;
    header.pageSizeName.copy(cups.cupsPageSizeName, sizeof cups.cupsPageSizeName - 1);
    return cups;
}

ssize_t appendToString(void* target, unsigned char* bytes, size_t size) {
    static_cast<std::string*>(target)->append(reinterpret_cast<const char*>(bytes), size);
    return static_cast<ssize_t>(size);
}

void writePage(cups_raster_t* raster, const Page& page) {
    cups_page_header2_t header = toCups(page.header);
    cupsRasterWriteHeader2(raster, &header);
    auto rows = page.rows;
    cupsRasterWritePixels(raster, rows.data(), static_cast<unsigned>(rows.size()));
}

// One stream per page, so that a caller knows where each page's header lies.
std::string onePageStream(const Page& page, bool compressed) {
    std::string stream;
    cups_raster_t* raster = cupsRasterOpenIO(
        appendToString, &stream, compressed ? CUPS_RASTER_WRITE_COMPRESSED : CUPS_RASTER_WRITE);
    writePage(raster, page);
    cupsRasterClose(raster);
    return stream;
}

void reverseWord(std::string& stream, std::size_t at) {
    std::reverse(stream.begin() + static_cast<std::ptrdiff_t>(at),
                 stream.begin() + static_cast<std::ptrdiff_t>(at + 4));
}

// Texts frame the header's numbers: they keep their order.
void swapHeader(std::string& stream) {
    const std::size_t first = rasterSyncBytes + offsetof(cups_page_header2_t, AdvanceDistance);
    const std::size_t end = rasterSyncBytes + offsetof(cups_page_header2_t, cupsString);
    for (std::size_t at = first; at < end; at += 4) {
        reverseWord(stream, at);
    }
}

}  // namespace

std::string rasterStream(const std::vector<Page>& pages, RasterForm form) {
    const bool compressed = form == RasterForm::Compressed || form == RasterForm::SwappedCompressed;
    const bool swapped = form == RasterForm::SwappedPlain || form == RasterForm::SwappedCompressed;
    std::string all;
    for (const Page& page : pages) {
        std::string stream = onePageStream(page, compressed);
        if (swapped) {
            swapHeader(stream);
        }
        all += all.empty() ? stream : stream.substr(rasterSyncBytes);
    }
    if (swapped) {
        reverseWord(all, 0);
    }
    return all;
}

void patchFirstHeader(std::string& stream, std::size_t offset, unsigned value) {
    std::memcpy(stream.data() + rasterSyncBytes + offset, &value, sizeof value);
}
