#include "preview/pdf_writer.h"

#include <zlib.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <functional>
#include <new>

#include "preview/packed_row.h"

namespace preview {
namespace {

constexpr double sPointsPerInch = 72;

// Renderers let an image cover every pixel that it touches, and a page, too: one that ends a little
// before the edge of its last dot touches no pixel more. In dots.
constexpr double sImageInset = 0.02;
constexpr double sPageInset = 0.002;

// Objects that every file has, and those of each page behind them.
constexpr std::uint64_t sCatalog = 1;
constexpr std::uint64_t sPageList = 2;
constexpr std::uint64_t sFirstOfPages = 3;
constexpr std::uint64_t sObjectsOfAPage = 4;

std::string number(double value) {
    std::array<char, 64> text{};
    const int length = std::snprintf(text.data(), text.size(), "%.6f", value);
    return {text.data(), static_cast<std::size_t>(length)};
}

std::string reference(std::uint64_t object) {
    return std::to_string(object) + " 0 R";
}

// zlib's state, which hands compressed bytes on as they come.
class Deflater {
public:
    using Take = std::function<void(std::string_view)>;

    explicit Deflater(Take take) : take_(std::move(take)) {
        if (deflateInit(&stream_, Z_DEFAULT_COMPRESSION) != Z_OK) {
            throw std::bad_alloc();
        }
    }
    Deflater(const Deflater&) = delete;
    Deflater& operator=(const Deflater&) = delete;
    ~Deflater() { deflateEnd(&stream_); }

    void add(std::span<std::uint8_t> bytes) { run(bytes, Z_NO_FLUSH); }
    void finish() { run({}, Z_FINISH); }

private:
    void run(std::span<std::uint8_t> bytes, int flush) {
        stream_.next_in = bytes.data();
        stream_.avail_in = static_cast<uInt>(bytes.size());
        do {
            stream_.next_out = compressed_.data();
            stream_.avail_out = static_cast<uInt>(compressed_.size());
            deflate(&stream_, flush);
            take_({reinterpret_cast<const char*>(compressed_.data()),
                   compressed_.size() - stream_.avail_out});
        } while (stream_.avail_out == 0);
    }

    Take take_;
    z_stream stream_{};
    std::array<Bytef, 16384> compressed_{};
};

// The matrix that lays the unit square, in which images lie, on the page.
std::string placeOf(const tspl::LabelPicture& picture, double pointsPerDot) {
    const auto length = [&](std::int64_t dots) {
        return number((static_cast<double>(dots) - 2 * sImageInset) * pointsPerDot);
    };
    const std::string inset = number(sImageInset * pointsPerDot);
    // The lower edge of the page is a little above that of its last dot.
    const std::string up = number((sImageInset - sPageInset) * pointsPerDot);
    return length(picture.width()) + " 0 0 " + length(picture.height()) + ' ' + inset + ' ' + up;
}

}  // namespace

PdfWriter::PdfWriter(std::FILE* file) : file_(file), places_(sFirstOfPages) {
    // Bytes that are no text tell programs that the file is not, either.
    put("%PDF-1.4\n%\xE2\xE3\xCF\xD3\n");
    putObject(sCatalog, "<< /Type /Catalog /Pages " + reference(sPageList) + " >>");
}

void PdfWriter::put(std::string_view text) {
    if (!error_.empty()) {
        return;
    }
    if (std::fwrite(text.data(), 1, text.size(), file_) != text.size()) {
        error_ = std::strerror(errno);
    }
    written_ += text.size();
}

void PdfWriter::beginObject(std::uint64_t number) {
    places_.at(number) = written_;
    put(std::to_string(number) + " 0 obj\n");
}

void PdfWriter::putObject(std::uint64_t number, const std::string& body) {
    beginObject(number);
    put(body + "\nendobj\n");
}

std::uint64_t PdfWriter::putMask(const tspl::LabelPicture& picture) {
    const std::uint64_t start = written_;
    Deflater deflater([this](std::string_view bytes) { put(bytes); });
    std::vector<std::uint8_t> row(packedBytes(picture));
    for (std::int64_t y = 0; y < picture.height() && error_.empty(); ++y) {
        packRow(picture, y, row);
        deflater.add(row);
    }
    deflater.finish();
    return written_ - start;
}

void PdfWriter::addPage(const tspl::LabelPicture& picture) {
    const double pointsPerDot = sPointsPerInch / picture.dpi();
    const auto length = [&](std::int64_t dots) {
        return number((static_cast<double>(dots) - sPageInset) * pointsPerDot);
    };
    const std::uint64_t page = sFirstOfPages + sObjectsOfAPage * pages_;
    const std::uint64_t drawing = page + 1;
    const std::uint64_t mask = page + 2;
    const std::uint64_t maskBytes = page + 3;
    ++pages_;
    places_.resize(page + sObjectsOfAPage);
    putObject(page, "<< /Type /Page /Parent " + reference(sPageList) + " /MediaBox [0 0 " +
                        length(picture.width()) + ' ' + length(picture.height()) +
                        "] /Resources << /XObject << /Label " + reference(mask) +
                        " >> >> /Contents " + reference(drawing) + " >>");
    const std::string draw = "0 g " + placeOf(picture, pointsPerDot) + " cm /Label Do\n";
    putObject(drawing,
              "<< /Length " + std::to_string(draw.size()) + " >>\nstream\n" + draw + "endstream");
    beginObject(mask);
    put("<< /Type /XObject /Subtype /Image /ImageMask true /BitsPerComponent 1 /Interpolate false"
        " /Width " +
        std::to_string(picture.width()) + " /Height " + std::to_string(picture.height()) +
        " /Filter /FlateDecode /Length " + reference(maskBytes) + " >>\nstream\n");
    const std::uint64_t bytes = putMask(picture);
    put("\nendstream\nendobj\n");
    putObject(maskBytes, std::to_string(bytes));
}

void PdfWriter::putPageList() {
    beginObject(sPageList);
    put("<< /Type /Pages /Count " + std::to_string(pages_) + " /Kids [\n");
    for (std::uint64_t i = 0; i < pages_; ++i) {
        put(reference(sFirstOfPages + sObjectsOfAPage * i) + '\n');
    }
    put("] >>\nendobj\n");
}

// Each place is a line of 20 bytes.
void PdfWriter::putPlaces() {
    put("xref\n0 " + std::to_string(places_.size()) + "\n0000000000 65535 f \n");
    constexpr std::size_t digits = 10;
    for (std::size_t object = 1; object < places_.size(); ++object) {
        const std::string place = std::to_string(places_[object]);
        if (place.size() > digits && error_.empty()) {
            error_ = std::strerror(EFBIG);
        }
        put(std::string(digits - std::min(digits, place.size()), '0') + place + " 00000 n \n");
    }
}

void PdfWriter::finish() {
    putPageList();
    const std::uint64_t start = written_;
    putPlaces();
    put("trailer\n<< /Size " + std::to_string(places_.size()) + " /Root " + reference(sCatalog) +
        " >>\nstartxref\n" + std::to_string(start) + "\n%%EOF\n");
}

}  // namespace preview
