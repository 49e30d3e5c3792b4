// Cuts a part out of the first page of a CUPS raster stream, from standard input to standard
// output, where it is stored compressed: raster_part X Y WIDTH HEIGHT, in pixels.
#include <cups/raster.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

struct Part {
    unsigned x;
    unsigned y;
    unsigned width;
    unsigned height;
};

int fail(const char* why) {
    std::fprintf(stderr, "raster_part: %s\n", why);
    return EXIT_FAILURE;
}

bool lies(const Part& part, const cups_page_header2_t& page) {
    return page.cupsBitsPerPixel == 8 && part.width > 0 && part.height > 0 &&
           part.x + part.width <= page.cupsWidth && part.y + part.height <= page.cupsHeight;
}

// The header of the part's page. Lengths on paper are in points.
cups_page_header2_t headerOf(const Part& part, cups_page_header2_t header) {
    constexpr float pointsPerInch = 72;
    const float width =
        pointsPerInch * static_cast<float>(part.width) / static_cast<float>(header.HWResolution[0]);
    const float height = pointsPerInch * static_cast<float>(part.height) /
                         static_cast<float>(header.HWResolution[1]);
    header.cupsWidth = header.cupsBytesPerLine = part.width;
    header.cupsHeight = part.height;
    header.PageSize[0] = header.ImagingBoundingBox[2] = static_cast<unsigned>(width);
    header.PageSize[1] = header.ImagingBoundingBox[3] = static_cast<unsigned>(height);
    header.cupsPageSize[0] = header.cupsImagingBBox[2] = width;
    header.cupsPageSize[1] = header.cupsImagingBBox[3] = height;
    return header;
}

bool copyPart(cups_raster_t* in, cups_raster_t* out, const Part& part, unsigned bytesPerLine) {
    std::vector<unsigned char> row(bytesPerLine);
    for (unsigned y = 0; y < part.y + part.height; ++y) {
        if (cupsRasterReadPixels(in, row.data(), bytesPerLine) != bytesPerLine) {
            return false;
        }
        if (y >= part.y &&
            cupsRasterWritePixels(out, row.data() + part.x, part.width) != part.width) {
            return false;
        }
    }
    return true;
}

}  // namespace

int main(int argc, char* argv[]) {
    if (argc != 5) {
        return fail("needs X Y WIDTH HEIGHT");
    }
    const auto number = [&](int index) { return static_cast<unsigned>(std::stoul(argv[index])); };
    const Part part = {number(1), number(2), number(3), number(4)};
    cups_raster_t* in = cupsRasterOpen(STDIN_FILENO, CUPS_RASTER_READ);
    cups_page_header2_t page;
    if (in == nullptr || cupsRasterReadHeader2(in, &page) == 0) {
        return fail("no raster page on standard input");
    }
    if (!lies(part, page)) {
        return fail("the part does not lie on the page, or the page is not 8 bits deep");
    }
    cups_raster_t* out = cupsRasterOpen(STDOUT_FILENO, CUPS_RASTER_WRITE_COMPRESSED);
    cups_page_header2_t header = headerOf(part, page);
    if (out == nullptr || cupsRasterWriteHeader2(out, &header) == 0 ||
        !copyPart(in, out, part, page.cupsBytesPerLine)) {
        return fail("the page cannot be copied");
    }
    cupsRasterClose(out);
    cupsRasterClose(in);
    return EXIT_SUCCESS;
}
