#include "tests/reference/trace.h"

#include "tests/reference/text.h"

namespace reference {

std::string traceText(const PageHeader& header) {
    return formatted("cupsWidth:%d, cupsHeight:%d, cupsBytesPerLine:%d, cupsBitsPerPixel:%d\n",
                     static_cast<int>(header.width), static_cast<int>(header.height),
                     static_cast<int>(header.bytesPerLine), static_cast<int>(header.bitsPerPixel));
}

}  // namespace reference
