#include <cups/raster.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>

#include "intake/picture/label_output.h"

namespace intake::picture {
namespace {

constexpr unsigned sBits = 8;
constexpr float sPointsPerInch = 72;

template <class T>
std::span<const char> bytesOf(const T& value) {
    return {reinterpret_cast<const char*>(&value), sizeof value};
}

void setPoints(cups_page_header2_t& header, float width, float height) {
    header.cupsPageSize[0] = width;
    header.cupsPageSize[1] = height;
    header.cupsImagingBBox[2] = width;
    header.cupsImagingBBox[3] = height;
    header.PageSize[0] = static_cast<unsigned>(std::ceil(width));
    header.PageSize[1] = static_cast<unsigned>(std::ceil(height));
    header.ImagingBoundingBox[2] = header.PageSize[0];
    header.ImagingBoundingBox[3] = header.PageSize[1];
}

// As Ghostscript's converter fills it.
cups_page_header2_t headerOf(const OutputPage& page) {
    cups_page_header2_t header;
    std::memset(&header, 0, sizeof header);
    const auto dpi = static_cast<float>(page.dots.dpi);
    header.HWResolution[0] = page.dots.dpi;
    header.HWResolution[1] = page.dots.dpi;
    header.NumCopies = page.copies;
    setPoints(header, static_cast<float>(page.dots.width) * sPointsPerInch / dpi,
              static_cast<float>(page.dots.height) * sPointsPerInch / dpi);
    header.cupsBorderlessScalingFactor = 1;
    header.cupsWidth = page.dots.width;
    header.cupsHeight = page.dots.height;
    header.cupsBitsPerColor = sBits;
    header.cupsBitsPerPixel = sBits;
    header.cupsBytesPerLine = page.dots.width;
    header.cupsColorOrder = CUPS_ORDER_CHUNKED;
    header.cupsColorSpace = CUPS_CSPACE_K;
    header.cupsNumColors = 1;
    page.sizeName.copy(header.cupsPageSizeName, sizeof header.cupsPageSizeName - 1);
    return header;
}

class RasterOutput : public LabelOutput {
public:
    RasterOutput(int descriptor, const OutputPage& page)
        : descriptor_(descriptor), header_(headerOf(page)) {}

    void write(const GreyImage& label) override {
        if (!isBegun_) {
            constexpr unsigned syncWord = CUPS_RASTER_SYNC;
            writeAll(descriptor_, bytesOf(syncWord));
            isBegun_ = true;
        }
        writeAll(descriptor_, bytesOf(header_));
        for (std::span<const std::uint8_t> rest(label.dots); !rest.empty();) {
            const auto piece = rest.first(std::min(rest.size(), ink_.size()));
            writeInk(piece);
            rest = rest.subspan(piece.size());
        }
    }

    void finish() override {}

private:
    void writeInk(std::span<const std::uint8_t> dots) {
        std::ranges::transform(dots, ink_.begin(), [](std::uint8_t level) {
            return static_cast<char>(static_cast<unsigned char>(~level));
        });
        writeAll(descriptor_, std::span(ink_).first(dots.size()));
    }

    // As much as a pipe takes.
    std::array<char, 1U << 16U> ink_;
    int descriptor_;
    cups_page_header2_t header_;
    bool isBegun_ = false;
};

}  // namespace

std::unique_ptr<LabelOutput> rasterOutput(int descriptor, const OutputPage& page) {
    return std::make_unique<RasterOutput>(descriptor, page);
}

}  // namespace intake::picture
