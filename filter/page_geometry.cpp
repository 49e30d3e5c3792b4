#include "filter/page_geometry.h"

#include <cstdint>
#include <limits>

bool hasPrintableGeometry(const cups_page_header2_t& header) {
    const std::uint64_t bytes = std::uint64_t{header.cupsBytesPerLine} * header.cupsHeight;
    return header.cupsBytesPerLine >= header.cupsWidth &&
           bytes <= std::numeric_limits<std::uint32_t>::max();
}

unsigned pageBytes(const cups_page_header2_t& header) {
    return header.cupsBytesPerLine * header.cupsHeight;
}
