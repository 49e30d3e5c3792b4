#include "tests/preview/dot_picture.h"

#include <png.h>

#include <algorithm>
#include <csetjmp>
#include <cstdio>
#include <memory>
#include <stdexcept>

#include "tests/reference/page_process.h"

namespace {

struct PngReader {
    png_structp png = png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    png_infop info = png_create_info_struct(png);

    PngReader() = default;
    PngReader(const PngReader&) = delete;
    PngReader& operator=(const PngReader&) = delete;
    ~PngReader() { png_destroy_read_struct(&png, &info, nullptr); }
};

// libpng jumps back here from an error: nothing in this function has a destructor.
bool read(const PngReader& reader, std::FILE* file) {
    if (setjmp(png_jmpbuf(reader.png)) != 0) {  // NOLINT(cert-err52-cpp): libpng has no other way
        return false;
    }
    png_init_io(reader.png, file);
    png_set_user_limits(reader.png, PNG_UINT_31_MAX, PNG_UINT_31_MAX);
    png_read_png(reader.png, reader.info, PNG_TRANSFORM_IDENTITY, nullptr);
    return true;
}

// In 1 bit grey, 0 is black.
DotPicture dotsOf(const PngReader& reader) {
    DotPicture picture;
    picture.width = png_get_image_width(reader.png, reader.info);
    picture.height = png_get_image_height(reader.png, reader.info);
    png_bytepp rows = png_get_rows(reader.png, reader.info);
    picture.dots.reserve(picture.width * picture.height);
    for (std::size_t y = 0; y < picture.height; ++y) {
        for (std::size_t x = 0; x < picture.width; ++x) {
            const bool white = (rows[y][x / 8] & (0x80U >> (x % 8))) != 0;
            picture.dots.push_back(white ? 0 : 1);
        }
    }
    return picture;
}

std::string sizeOf(const DotPicture& picture) {
    return std::to_string(picture.width) + " x " + std::to_string(picture.height) + " dots";
}

}  // namespace

PngPicture readPng(const std::string& path) {
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "rb"),
                                                               std::fclose);
    const PngReader reader;
    if (!file || !read(reader, file.get())) {
        throw std::runtime_error("not a PNG file: " + path);
    }
    if (png_get_bit_depth(reader.png, reader.info) != 1 ||
        png_get_color_type(reader.png, reader.info) != PNG_COLOR_TYPE_GRAY) {
        throw std::runtime_error("not 1 bit grey: " + path);
    }
    PngPicture result;
    int unit = PNG_RESOLUTION_UNKNOWN;
    png_get_pHYs(reader.png, reader.info, &result.xDotsPerMetre, &result.yDotsPerMetre, &unit);
    if (unit != PNG_RESOLUTION_METER) {
        throw std::runtime_error("no resolution in metres: " + path);
    }
    result.picture = dotsOf(reader);
    return result;
}

DotPicture drawnPicture(const std::vector<std::string>& rows) {
    DotPicture picture{rows.at(0).size(), rows.size(), {}};
    for (const std::string& row : rows) {
        for (const char dot : row) {
            picture.dots.push_back(dot == '#' ? 1 : 0);
        }
    }
    return picture;
}

DotPicture burntDots(const reference::GreyImage& finished) {
    DotPicture picture{finished.width, finished.height, {}};
    for (std::size_t i = 0; i < finished.width * finished.height; ++i) {
        picture.dots.push_back(finished.bytes[i] != 0 ? 1 : 0);
    }
    return picture;
}

DotPicture turned(const DotPicture& picture) {
    DotPicture result = picture;
    std::reverse(result.dots.begin(), result.dots.end());
    return result;
}

std::vector<DotPicture> picturesOf(const reference::Job& job) {
    std::vector<DotPicture> pictures;
    for (const reference::Page& page : job.pages) {
        const auto processed = processPage(page, propertiesOf(job.settings));
        const DotPicture picture = burntDots(processed.finished.value());
        pictures.push_back(job.settings.origin == "Rotation180" ? turned(picture) : picture);
    }
    return pictures;
}

std::string differenceOf(const DotPicture& expected, const DotPicture& actual) {
    if (expected.width != actual.width || expected.height != actual.height) {
        return "expected " + sizeOf(expected) + ", got " + sizeOf(actual);
    }
    const auto difference =
        std::mismatch(expected.dots.begin(), expected.dots.end(), actual.dots.begin()).first;
    if (difference == expected.dots.end()) {
        return "";
    }
    const auto at = static_cast<std::size_t>(difference - expected.dots.begin());
    return "the dot at column " + std::to_string(at % expected.width) + " of row " +
           std::to_string(at / expected.width) +
           (*difference == 1 ? " is not burnt" : " is burnt") + " (" + sizeOf(expected) + ")";
}
