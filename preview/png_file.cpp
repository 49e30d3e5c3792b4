#include "preview/png_file.h"

#include <png.h>

#include <cerrno>
#include <cmath>
#include <csetjmp>
#include <cstdio>
#include <cstring>
#include <vector>

#include "preview/packed_row.h"
#include "preview/unfinished_file.h"

namespace preview {
namespace {

// libpng's two records, and the message of the error that ended its work.
class PngWriter {
public:
    PngWriter()
        : png_(png_create_write_struct(PNG_LIBPNG_VER_STRING, this, onError, onWarning)),
          info_(png_ == nullptr ? nullptr : png_create_info_struct(png_)) {}
    PngWriter(const PngWriter&) = delete;
    PngWriter& operator=(const PngWriter&) = delete;
    ~PngWriter() { png_destroy_write_struct(&png_, &info_); }

    [[nodiscard]] bool isReady() const { return info_ != nullptr; }
    [[nodiscard]] const std::string& error() const { return error_; }

    bool write(std::FILE* file, const tspl::LabelPicture& picture, std::vector<png_byte>& row);

private:
    static void onError(png_structp png, png_const_charp message);
    static void onWarning(png_structp png, png_const_charp message);
    void writeHeader(const tspl::LabelPicture& picture);

    std::string error_;
    png_structp png_;
    png_infop info_;
};

// libpng wants its callers to come back from an error by a long jump.
void PngWriter::onError(png_structp png, png_const_charp message) {
    static_cast<PngWriter*>(png_get_error_ptr(png))->error_ = message;
    png_longjmp(png, 1);
}

void PngWriter::onWarning(png_structp, png_const_charp) {}

void PngWriter::writeHeader(const tspl::LabelPicture& picture) {
    constexpr double metresPerInch = 0.0254;
    const auto dotsPerMetre = static_cast<png_uint_32>(std::lround(picture.dpi() / metresPerInch));
    // Labels are longer than the million rows that libpng takes for a sane picture.
    png_set_user_limits(png_, PNG_UINT_31_MAX, PNG_UINT_31_MAX);
    png_set_IHDR(png_, info_, static_cast<png_uint_32>(picture.width()),
                 static_cast<png_uint_32>(picture.height()), 1, PNG_COLOR_TYPE_GRAY,
                 PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    png_set_pHYs(png_, info_, dotsPerMetre, dotsPerMetre, PNG_RESOLUTION_METER);
    png_write_info(png_, info_);
}

// Between setjmp and a jump back nothing may be built that has a destructor: the row belongs to
// the caller.
bool PngWriter::write(std::FILE* file, const tspl::LabelPicture& picture,
                      std::vector<png_byte>& row) {
    if (setjmp(png_jmpbuf(png_)) != 0) {  // NOLINT(cert-err52-cpp): libpng has no other way
        return false;
    }
    png_init_io(png_, file);
    writeHeader(picture);
    for (std::int64_t y = 0; y < picture.height(); ++y) {
        packRow(picture, y, row);
        png_write_row(png_, row.data());
    }
    png_write_end(png_, info_);
    return true;
}

std::string writeTo(std::FILE* file, const tspl::LabelPicture& picture) {
    std::vector<png_byte> row(packedBytes(picture));
    PngWriter writer;
    errno = 0;
    if (!writer.isReady()) {
        return "not enough memory";
    }
    if (writer.write(file, picture, row)) {
        return "";
    }
    // libpng says no more than that it could not write.
    return std::ferror(file) != 0 && errno != 0 ? std::strerror(errno) : writer.error();
}

}  // namespace

std::string writePng(const std::string& name, const tspl::LabelPicture& picture) {
    UnfinishedFile file(name);
    std::string error = file.open();
    if (error.empty()) {
        error = writeTo(file.file(), picture);
    }
    return error.empty() ? file.complete() : error;
}

}  // namespace preview
