// From a grey page to the finished black and white image.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>

#include "tests/reference/grey_image.h"
#include "tests/reference/page.h"
#include "tests/reference/text.h"

namespace reference {

/// How a page is to be printed. Brightness and contrast lie in -100 to 100. The filter
/// itself sets brightness, halftone type, mirror and negative only.
struct PageProperties {
    int brightness = 0;
    int contrast = 0;
    int halftoneType = 0;
    bool mirror = false;
    bool negative = false;
    bool rotate180 = false;
    int antiWrinkle = 0;
    unsigned removeBlankEdges = 0;
    std::size_t skipRightPixels = 0;
};

/// The properties that a job's settings give to each of its pages, brightness clamped.
PageProperties propertiesOf(const Settings& settings);

/// The result of processing one page.
struct ProcessedPage {
    /// The image that is printed; none when the page could not be loaded.
    std::optional<GreyImage> finished;
    /// Lines with their level prefix.
    Lines log;
    /// The processing buffer, 2 × bytesPerLine × height bytes. Bytes that processing does
    /// not write are 0 here and arbitrary in the filter.
    Bytes buffer;
    /// Page height × stride of the finished image, 0 when the page could not be loaded.
    std::int64_t length = 0;
};

/// Processes a page. For halftone types 8 and 9 (stencils) its rows must hold at least width
/// bytes; longer ones are misread, as by the filter, with 0 for the bytes between them.
ProcessedPage processPage(const Page& page, const PageProperties& properties);

/// A buffer of `size` bytes filled with the pixels of a finished image, rows the image's
/// stride apart: index 1 becomes 255, then every value is complemented for `negative`.
/// Pixels past the end of the buffer are dropped; bytes that no pixel reaches are 0.
Bytes processingBuffer(const GreyImage& finished, bool negative, std::size_t size);

}  // namespace reference
