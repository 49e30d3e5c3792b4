// A stand-in for libcups' raster reader, which hands out what real streams do not:
// - KESTO_TEST_FAILING_PAGE: the number of a page whose pixels it says it cannot read, although it
//   did. Real streams fail at their end only, where no page follows.
// - KESTO_TEST_PAGE_WITHOUT_LINES and KESTO_TEST_PAGE_WITHOUT_BYTES: the number of a page whose
//   header has a height of 0 or no bytes per line. libcups takes such headers for the end of the
//   stream. Whoever reads on behind that page is ended.

#include <cups/raster.h>
#include <dlfcn.h>

#include <cstdlib>

namespace {

bool isPage(int number, const char* variable) {
    const char* chosen = std::getenv(variable);
    return chosen != nullptr && number == std::atoi(chosen);
}

bool sEmptyPageIsOut = false;

void handOut(unsigned& field) {
    field = 0;
    sEmptyPageIsOut = true;
}

void requireNoEmptyPageBefore() {
    if (sEmptyPageIsOut) {
        std::abort();
    }
}

}  // namespace

extern "C" unsigned cupsRasterReadHeader2(cups_raster_t* raster, cups_page_header2_t* header) {
    using Reader = unsigned (*)(cups_raster_t*, cups_page_header2_t*);
    static const auto realReader =
        reinterpret_cast<Reader>(dlsym(RTLD_NEXT, "cupsRasterReadHeader2"));
    static int page = 0;
    requireNoEmptyPageBefore();
    const unsigned read = realReader(raster, header);
    ++page;
    if (isPage(page, "KESTO_TEST_PAGE_WITHOUT_LINES")) {
        handOut(header->cupsHeight);
    }
    if (isPage(page, "KESTO_TEST_PAGE_WITHOUT_BYTES")) {
        handOut(header->cupsBytesPerLine);
    }
    return read;
}

extern "C" unsigned cupsRasterReadPixels(cups_raster_t* raster, unsigned char* pixels,
                                         unsigned size) {
    using Reader = unsigned (*)(cups_raster_t*, unsigned char*, unsigned);
    static const auto realReader =
        reinterpret_cast<Reader>(dlsym(RTLD_NEXT, "cupsRasterReadPixels"));
    static int page = 0;
    requireNoEmptyPageBefore();
    const unsigned read = realReader(raster, pixels, size);
    return isPage(++page, "KESTO_TEST_FAILING_PAGE") ? 0 : read;
}
