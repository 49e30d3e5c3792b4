#pragma once

#include <optional>
#include <string>

namespace intake {

/// What the header of a raster page says, as far as it matters here. Numbers are CUPS's.
struct RasterPage {
    unsigned width = 0;   ///< dots
    unsigned height = 0;  ///< dots
    unsigned bytesPerLine = 0;
    unsigned bitsPerColour = 0;
    unsigned bitsPerPixel = 0;
    unsigned colourOrder = 0;
    unsigned colourSpace = 0;
    unsigned dpiAcross = 0;
    unsigned dpiDown = 0;
};

/// What has to be done to a raster page before it can be printed.
struct RasterTreatment {
    unsigned width = 0;       ///< dots: a multiple of 8, with lines cut or filled up with paper
    bool isInverted = false;  ///< white was the highest value
    std::string refusal;      ///< why it cannot be printed at all; else empty
};

/// Takes grey pages of 8 bits with the printer's resolution, whether 0 is paper (K) or ink (W,
/// sGray). A width that is no multiple of 8 becomes the one that a label as wide as the page has.
RasterTreatment treatmentOf(const RasterPage& page, int dpi);

}  // namespace intake
