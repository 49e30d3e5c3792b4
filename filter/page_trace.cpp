#include "filter/page_trace.h"

#include <cstdio>
#include <cstring>

#include "driver/log.h"
#include "driver/own_file.h"

namespace {

// A header can hold any number here, also one that the enumeration does not have and that must
// not be looked at as its value.
template <typename Enumeration>
unsigned numberIn(const Enumeration& field) {
    unsigned number = 0;
    static_assert(sizeof number == sizeof field);
    std::memcpy(&number, &field, sizeof number);
    return number;
}

}  // namespace

void tracePageSize(const cups_page_header2_t& header) {
    std::FILE* trace = openOwnFile("/tmp/xxxxx.log", readableByAll);
    if (trace == nullptr) {
        return;
    }
    std::fprintf(trace, "cupsWidth:%d, cupsHeight:%d, cupsBytesPerLine:%d, cupsBitsPerPixel:%d\n",
                 static_cast<int>(header.cupsWidth), static_cast<int>(header.cupsHeight),
                 static_cast<int>(header.cupsBytesPerLine),
                 static_cast<int>(header.cupsBitsPerPixel));
    std::fclose(trace);
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
    logField("cupsColorOrder", numberIn(header.cupsColorOrder));
    logField("cupsColorSpace", numberIn(header.cupsColorSpace));
    logField("cupsCompression", header.cupsCompression);
    logField("cupsRowCount", header.cupsRowCount);
    logField("cupsRowFeed", header.cupsRowFeed);
    logField("cupsRowStep", header.cupsRowStep);
}
