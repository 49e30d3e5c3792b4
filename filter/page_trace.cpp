#include "filter/page_trace.h"

#include <bit>
#include <cstdio>

#include "driver/log.h"
#include "driver/own_file.h"

void tracePageSize(const cups_page_header2_t& header) {
    const OwnedFile trace = replaceOwnFile("/tmp/xxxxx.log", readableByAll);
    if (!trace) {
        return;
    }
    std::fprintf(
        trace.get(), "cupsWidth:%d, cupsHeight:%d, cupsBytesPerLine:%d, cupsBitsPerPixel:%d\n",
        static_cast<int>(header.cupsWidth), static_cast<int>(header.cupsHeight),
        static_cast<int>(header.cupsBytesPerLine), static_cast<int>(header.cupsBitsPerPixel));
}

void logPageHeader(int pageNumber, const cups_page_header2_t& header) {
    const auto logField = [](const char* name, unsigned value) {
        kestoLogCommon(kestoLogTrace, "header.%s:%d", name, static_cast<int>(value));
    };
    // The first two lines carry a line end of their own, so an empty line follows each.
    kestoLogCommon(kestoLogTrace, "PAGE: %d %d\n", pageNumber, static_cast<int>(header.NumCopies));
    kestoLogCommon(kestoLogTrace, "header.HWResolution[0]:%d\n",
                   static_cast<int>(header.HWResolution[0]));
    logField("HWResolution[1]", header.HWResolution[1]);
    logField("cupsWidth", header.cupsWidth);
    logField("cupsHeight", header.cupsHeight);
    logField("cupsMediaType", header.cupsMediaType);
    logField("cupsBitsPerColor", header.cupsBitsPerColor);
    logField("cupsBitsPerPixel", header.cupsBitsPerPixel);
    logField("cupsBytesPerLine", header.cupsBytesPerLine);
    // Bits, because a header can hold numbers that the enumerations do not have.
    logField("cupsColorOrder", std::bit_cast<unsigned>(header.cupsColorOrder));
    logField("cupsColorSpace", std::bit_cast<unsigned>(header.cupsColorSpace));
    logField("cupsCompression", header.cupsCompression);
    logField("cupsRowCount", header.cupsRowCount);
    logField("cupsRowFeed", header.cupsRowFeed);
    logField("cupsRowStep", header.cupsRowStep);
}
