#include "intake/raster_page.h"

#include <algorithm>

#include "sizes/dot_grid.h"
#include "sizes/nominal_size.h"

namespace intake {
namespace {

constexpr unsigned chunked = 0;
constexpr unsigned spaceOfLuminance = 0;      // W
constexpr unsigned spaceOfBlack = 3;          // K
constexpr unsigned spaceOfStandardGrey = 18;  // sGray

bool isWhiteHigh(unsigned colourSpace) {
    return colourSpace == spaceOfLuminance || colourSpace == spaceOfStandardGrey;
}

std::string text(unsigned number) {
    return std::to_string(number);
}

std::string resolutionText(const RasterPage& page) {
    return page.dpiAcross == page.dpiDown ? text(page.dpiAcross)
                                          : text(page.dpiAcross) + " x " + text(page.dpiDown);
}

bool isGrey(const RasterPage& page) {
    return page.colourSpace == spaceOfBlack || isWhiteHigh(page.colourSpace);
}

std::string refusalOf(const RasterPage& page, int dpi) {
    const auto wanted = static_cast<unsigned>(dpi);
    if (!isGrey(page)) {
        return "its pages are not grey (colour space " + text(page.colourSpace) + ")";
    }
    if (page.bitsPerPixel != 8 || page.bitsPerColour != 8 || page.colourOrder != chunked) {
        return "its pages have " + text(page.bitsPerPixel) + " bits per dot, and not 8";
    }
    if (page.dpiAcross != wanted || page.dpiDown != wanted) {
        return "its pages have " + resolutionText(page) + " dpi, and the printer " + text(wanted);
    }
    if (page.width == 0 || page.height == 0 || page.bytesPerLine < page.width) {
        return "its pages have " + text(page.width) + " x " + text(page.height) + " dots in " +
               text(page.bytesPerLine) + " bytes per line";
    }
    return {};
}

unsigned printedWidth(unsigned width, int dpi) {
    const double millimetres = width * sizes::millimetresPerInch / dpi;
    return static_cast<unsigned>(std::max(sizes::dotsAcross(millimetres, dpi), sizes::fewestDots));
}

}  // namespace

RasterTreatment treatmentOf(const RasterPage& page, int dpi) {
    if (std::string refusal = refusalOf(page, dpi); !refusal.empty()) {
        return {0, false, std::move(refusal)};
    }
    return {printedWidth(page.width, dpi), isWhiteHigh(page.colourSpace), {}};
}

}  // namespace intake
