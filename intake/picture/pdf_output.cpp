#include <array>
#include <cstdio>
#include <string>

#include "intake/picture/label_output.h"

namespace intake::picture {
namespace {

constexpr double sPointsPerInch = 72;
// Object 1 is the catalogue and 2 the list of pages; both come last.
constexpr unsigned sFirstPage = 3;
constexpr unsigned sObjectsOfPage = 3;

std::string text(unsigned number) {
    return std::to_string(number);
}

std::string points(unsigned dots, unsigned dpi) {
    std::array<char, 32> number{};
    std::snprintf(number.data(), number.size(), "%.5f", dots * sPointsPerInch / dpi);
    return number.data();
}

std::string entry(std::size_t offset) {
    std::array<char, 32> line{};
    std::snprintf(line.data(), line.size(), "%010zu 00000 n \n", offset);
    return line.data();
}

class PdfOutput : public LabelOutput {
public:
    PdfOutput(int descriptor, const OutputPage& page)
        : descriptor_(descriptor),
          width_(points(page.dots.width, page.dots.dpi)),
          height_(points(page.dots.height, page.dots.dpi)) {}

    void write(const GreyImage& label) override {
        if (offsets_.empty()) {
            offsets_.resize(sFirstPage);
            append("%PDF-1.4\n");
        }
        const unsigned page = nextObject();
        writePage(page);
        writeContents(page + 1);
        writeImage(page + 2, label);
    }

    void finish() override {
        if (offsets_.empty()) {
            return;
        }
        begin(1);
        append("<< /Type /Catalog /Pages 2 0 R >>\nendobj\n");
        writePageList();
        writeEnd();
    }

private:
    unsigned nextObject() const { return static_cast<unsigned>(offsets_.size()); }

    void append(std::span<const char> bytes) {
        writeAll(descriptor_, bytes);
        written_ += bytes.size();
    }

    void begin(unsigned object) {
        offsets_.resize(std::max<std::size_t>(offsets_.size(), object + 1));
        offsets_[object] = written_;
        append(text(object) + " 0 obj\n");
    }

    void writePage(unsigned object) {
        begin(object);
        append("<< /Type /Page /Parent 2 0 R /MediaBox [0 0 " + width_ + " " + height_ +
               "] /Contents " + text(object + 1) + " 0 R /Resources << /XObject << /L " +
               text(object + 2) + " 0 R >> >> >>\nendobj\n");
    }

    void writeContents(unsigned object) {
        const std::string content = width_ + " 0 0 " + height_ + " 0 0 cm /L Do\n";
        begin(object);
        append("<< /Length " + std::to_string(content.size()) + " >>\nstream\n" + content +
               "endstream\nendobj\n");
    }

    void writeImage(unsigned object, const GreyImage& label) {
        begin(object);
        append(
            "<< /Type /XObject /Subtype /Image /ColorSpace /DeviceGray /BitsPerComponent 8"
            " /Width " +
            text(label.width) + " /Height " + text(label.height) + " /Length " +
            std::to_string(label.dots.size()) + " >>\nstream\n");
        append({reinterpret_cast<const char*>(label.dots.data()), label.dots.size()});
        append(std::string("\nendstream\nendobj\n"));
    }

    void writePageList() {
        std::string pages;
        unsigned count = 0;
        for (unsigned page = sFirstPage; page < nextObject(); page += sObjectsOfPage) {
            pages += text(page) + " 0 R ";
            ++count;
        }
        begin(2);
        append("<< /Type /Pages /Kids [ " + pages + "] /Count " + text(count) + " >>\nendobj\n");
    }

    void writeEnd() {
        const std::size_t start = written_;
        std::string table = "xref\n0 " + text(nextObject()) + "\n0000000000 65535 f \n";
        for (unsigned object = 1; object < nextObject(); ++object) {
            table += entry(offsets_[object]);
        }
        append(table + "trailer\n<< /Size " + text(nextObject()) + " /Root 1 0 R >>\nstartxref\n" +
               std::to_string(start) + "\n%%EOF\n");
    }

    int descriptor_;
    std::string width_;
    std::string height_;
    std::size_t written_ = 0;
    std::vector<std::size_t> offsets_;
};

}  // namespace

std::unique_ptr<LabelOutput> pdfOutput(int descriptor, const OutputPage& page) {
    return std::make_unique<PdfOutput>(descriptor, page);
}

}  // namespace intake::picture
