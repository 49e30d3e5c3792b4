#include "tests/reference/page_process.h"

#include <algorithm>
#include <stdexcept>

#include "tests/reference/anti_wrinkle.h"
#include "tests/reference/dither.h"
#include "tests/reference/tone.h"
#include "tests/reference/transforms.h"

namespace reference {

namespace {

/// White's index in the palette of a halftoned image: 0 is black, 1 white, the rest black.
const std::uint8_t kWhiteIndex = 1;

void trace(Lines& log, const std::string& message) {
    log.push_back(debugLine("PageProcess: " + message));
}

/// Whether an 8-bit image of this size can be made: its size in bits fits 32 bits.
bool canBeLoaded(const PageHeader& header) {
    const std::uint32_t pixels = header.width * header.height;
    const std::uint32_t bits = pixels * 8;
    return pixels != 0 && bits / 8 == pixels;
}

void refuseStencils(const PageProperties& properties) {
    if (properties.halftoneType == 8 || properties.halftoneType == 9) {
        throw std::invalid_argument("stencil halftoning is not covered");
    }
}

void adjustTone(GreyImage& image, const PageProperties& properties, Lines& log) {
    if (properties.brightness == 0 && properties.contrast == 0) {
        return;
    }
    const int brightness = properties.brightness * 5;
    const int contrast = properties.contrast * 2;
    light(image, brightness, contrast);
    trace(log, formatted("Adjusted brightness to %d and contrast to %d", brightness, contrast));
}

void turn(GreyImage& image, const PageProperties& properties, Lines& log) {
    if (properties.rotate180) {
        image = rotate180(image);
        trace(log, "Rotated the image 180 degrees");
    }
    if (properties.mirror) {
        image = mirror(image);
        trace(log, "Mirrored the image");
    }
}

void halftone(GreyImage& image, const PageProperties& properties, Lines& log) {
    const Bytes values =
        dither(properties.halftoneType, image.width, image.height, packedPixels(image));
    image = imageFromPacked(values, image.width, image.height);
    trace(log, "Applied default dithering and increased bit depth");
}

void invert(GreyImage& image, const PageProperties& properties, Lines& log) {
    trace(log, formatted("negativePrint_ %d", properties.negative ? 1 : 0));
    if (properties.negative) {
        trace(log, "Inverting the image for negative print");
        image = negative(image);
    }
}

void frame(GreyImage& image, const Page& page, const PageProperties& properties, Lines& log) {
    if (properties.antiWrinkle == 0) {
        return;
    }
    const FramedImage framed =
        antiWrinkleFrame(image, properties.antiWrinkle, page.header.pageSizeName, kWhiteIndex);
    image = framed.image;
    append(log, framed.log);
}

GreyImage finishedImage(const Page& page, const PageProperties& properties, Lines& log) {
    const PageHeader& header = page.header;
    GreyImage image = imageFromArray(page.rows, header.width, header.height, header.bytesPerLine);
    trace(log, formatted("Successfully created RasterImage from array with stride %d",
                         static_cast<int>(header.bytesPerLine)));
    adjustTone(image, properties, log);
    turn(image, properties, log);
    halftone(image, properties, log);
    invert(image, properties, log);
    frame(image, page, properties, log);
    return image;
}

}  // namespace

PageProperties propertiesOf(const Settings& settings) {
    PageProperties properties;
    properties.brightness = std::clamp(settings.brightness, -100, 100);
    properties.halftoneType = settings.halftoneType;
    properties.mirror = settings.mirrorImage != 0;
    properties.negative = settings.negativeImage != 0;
    return properties;
}

ProcessedPage processPage(const Page& page, const PageProperties& properties) {
    refuseStencils(properties);
    const std::size_t bufferSize = std::size_t{2} * page.header.bytesPerLine * page.header.height;
    ProcessedPage result;
    result.buffer = Bytes(bufferSize, 0);
    trace(result.log, "QM dithering is disabled");
    if (!canBeLoaded(page.header)) {
        result.log.push_back(criticalLine("rasterimage.CreateFromArray with grey failed!"));
        return result;
    }
    const GreyImage finished = finishedImage(page, properties, result.log);
    result.buffer = processingBuffer(finished, properties.negative, bufferSize);
    // The page's own height counts, not that of an image that a frame made taller.
    result.length = static_cast<std::int64_t>(page.header.height * finished.stride);
    trace(result.log, formatted("Filled the output buffer with processed pixels, length: %d",
                                static_cast<int>(result.length)));
    result.finished = finished;
    return result;
}

Bytes processingBuffer(const GreyImage& finished, bool negative, std::size_t size) {
    Bytes buffer(size, 0);
    for (std::size_t y = 0; y < finished.height; ++y) {
        for (std::size_t x = 0; x < finished.width; ++x) {
            const std::uint8_t index = pixelAt(finished, x, y);
            const int value = index == 1 ? 255 : index;
            const std::size_t place = y * finished.stride + x;
            if (place < size) {
                buffer[place] = static_cast<std::uint8_t>(negative ? 255 - value : value);
            }
        }
    }
    return buffer;
}

}  // namespace reference
