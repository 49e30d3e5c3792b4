#include "tests/support/raster_reader.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace {

using reference::Page;
using reference::PageHeader;

struct Source {
    const std::string* stream;
    std::size_t position = 0;
};

ssize_t readFromString(void* source, unsigned char* bytes, size_t size) {
    auto& from = *static_cast<Source*>(source);
    const std::size_t count = std::min(size, from.stream->size() - from.position);
    std::copy_n(from.stream->data() + from.position, count, bytes);
    from.position += count;
    return static_cast<ssize_t>(count);
}

// Streams can hold numbers that the enumeration does not have.
template <typename Enumeration>
std::uint32_t numberIn(const Enumeration& field) {
    std::uint32_t number = 0;
    static_assert(sizeof number == sizeof field);
    std::memcpy(&number, &field, sizeof number);
    return number;
}

bool hasByteRows(const PageHeader& header) {
    return header.bitsPerPixel == 8 && header.height != 0 && header.bytesPerLine != 0;
}

// False where the stream holds no such page.
bool readRows(cups_raster_t* raster, Page& page, std::size_t most) {
    const std::size_t bytes = std::size_t{page.header.bytesPerLine} * page.header.height;
    if (bytes > most) {
        return false;
    }
    page.rows.resize(bytes);
    return cupsRasterReadPixels(raster, page.rows.data(), static_cast<unsigned>(bytes)) != 0;
}

}  // namespace

PageHeader headerFrom(const cups_page_header2_t& cups) {
    PageHeader header;
    header.width = cups.cupsWidth;
    header.height = cups.cupsHeight;
    header.bytesPerLine = cups.cupsBytesPerLine;
    header.bitsPerPixel = cups.cupsBitsPerPixel;
    header.bitsPerColor = cups.cupsBitsPerColor;
    header.colorOrder = numberIn(cups.cupsColorOrder);
    header.colorSpace = numberIn(cups.cupsColorSpace);
    header.compression = cups.cupsCompression;
    header.rowCount = cups.cupsRowCount;
    header.rowFeed = cups.cupsRowFeed;
    header.rowStep = cups.cupsRowStep;
    header.mediaType = cups.cupsMediaType;
    header.xDpi = cups.HWResolution[0];
    header.yDpi = cups.HWResolution[1];
    header.copies = cups.NumCopies;
    header.pageSizeName = std::string(cups.cupsPageSizeName,
                                      strnlen(cups.cupsPageSizeName, sizeof cups.cupsPageSizeName));
    return header;
}

bool contradictsItself(const PageHeader& header) {
    const std::uint64_t bytes = std::uint64_t{header.bytesPerLine} * header.height;
    return hasByteRows(header) && (header.bytesPerLine < header.width || bytes > 0xFFFFFFFF);
}

std::vector<Page> pagesIn(const std::string& stream, std::size_t mostBytes) {
    Source source = {&stream};
    cups_raster_t* raster = cupsRasterOpenIO(readFromString, &source, CUPS_RASTER_READ);
    std::vector<Page> pages;
    cups_page_header2_t header;
    while (cupsRasterReadHeader2(raster, &header) != 0) {
        Page page;
        page.header = headerFrom(header);
        const bool last = !hasByteRows(page.header) || contradictsItself(page.header);
        page.readable = !last && readRows(raster, page, mostBytes);
        pages.push_back(page);
        if (last || !page.readable) {
            break;
        }
    }
    cupsRasterClose(raster);
    return pages;
}
