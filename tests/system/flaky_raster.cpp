// A stand-in for libcups' pixel reader that reports failure for one page, although it read it.
// Real streams fail at their end only, where no page follows; this shows what happens between.

#include <cups/raster.h>
#include <dlfcn.h>

#include <cstdlib>

extern "C" unsigned cupsRasterReadPixels(cups_raster_t* raster, unsigned char* pixels,
                                         unsigned size) {
    using Reader = unsigned (*)(cups_raster_t*, unsigned char*, unsigned);
    static const auto realReader =
        reinterpret_cast<Reader>(dlsym(RTLD_NEXT, "cupsRasterReadPixels"));
    static int page = 0;
    const char* failing = std::getenv("KESTO_TEST_FAILING_PAGE");
    const unsigned read = realReader(raster, pixels, size);
    return failing != nullptr && ++page == std::atoi(failing) ? 0 : read;
}
