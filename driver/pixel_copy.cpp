#include <algorithm>

#include "driver/kesto_printer.h"
#include "driver/log.h"

namespace {

// Puts convert(index) for every pixel of the given area into its place in `out`, if it has one.
template <typename Convert>
void copyArea(const RasterImage& image, std::span<unsigned char> out, int width, int height,
              int stride, Convert convert) {
    for (int y = 0; y < height; ++y) {
        const std::size_t start = static_cast<std::size_t>(y) * static_cast<std::size_t>(stride);
        const auto row = out.subspan(std::min(start, out.size()));
        const auto used = row.first(std::min(row.size(), static_cast<std::size_t>(width)));
        for (std::size_t x = 0; x < used.size(); ++x) {
            used[x] = convert(image.GetPixelIndex(static_cast<std::int64_t>(x), y));
        }
    }
}

}  // namespace

void KestoPrinter::copyPixels(const RasterImage& image, std::span<unsigned char> out, int width,
                              int height, int stride) const {
    copyArea(image, out, width, height, stride, [](std::uint8_t index) { return index; });
}

// For negative printing the image was inverted already, so this copy is the complement of
// what is printed.
void KestoPrinter::copyProcessedPixels(const RasterImage* image, std::span<unsigned char> out,
                                       int width, int height, int stride) const {
    const unsigned inversion = negativePrint_ ? 0xFF : 0x00;
    copyArea(*image, out, width, height, stride, [inversion](std::uint8_t index) {
        const unsigned level = index == 1 ? 0xFF : index;
        return static_cast<unsigned char>(level ^ inversion);
    });
}

int KestoPrinter::GrayToMono(int bpl, int h, unsigned char* buf) const {
    const auto rowBytes = static_cast<std::size_t>(std::max(bpl, 0));
    const auto rows = static_cast<std::size_t>(std::max(h, 0));
    const bool skips = skipRightPixels_ != 0 && skipRightPixels_ < rowBytes;
    const std::size_t used = skips ? rowBytes - skipRightPixels_ : rowBytes;
    kestoLogCommon(kestoLogTrace, "GrayToMono, bpl(%d), h(%d), skipPixels(%d), wb(%d)", bpl, h,
                   static_cast<int>(skipRightPixels_), static_cast<int>(used));
    std::size_t written = 0;
    for (std::size_t y = 0; y < rows; ++y) {
        unsigned packed = 0;
        for (std::size_t x = 0; x < used; ++x) {
            packed |= buf[y * rowBytes + x] != 0 ? 0x80U >> (x % 8) : 0;
            if (x % 8 == 7 || x + 1 == used) {
                buf[written++] = static_cast<unsigned char>(packed);
                packed = 0;
            }
        }
    }
    return static_cast<int>(written);
}
