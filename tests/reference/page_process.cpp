#include "tests/reference/page_process.h"

#include <algorithm>

#include "tests/reference/anti_wrinkle.h"
#include "tests/reference/dither.h"
#include "tests/reference/stencil.h"
#include "tests/reference/tone.h"
#include "tests/reference/transforms.h"

namespace reference {

namespace {

bool isStencil(const PageProperties& properties) {
    return properties.halftoneType == 8 || properties.halftoneType == 9;
}

/// White's index in the palette of a halftoned image. A dithered one has 0 black, 1 white and
/// the rest black; a stencil has the ramp of grey levels.
std::uint8_t whiteIndexOf(const PageProperties& properties) {
    return isStencil(properties) ? 255 : 1;
}

void trace(Lines& log, const std::string& message) {
    log.push_back(debugLine("PageProcess: " + message));
}

/// Whether an 8-bit image of this size can be made: its size in bits fits 32 bits.
bool canBeLoaded(const PageHeader& header) {
    const std::uint32_t pixels = header.width * header.height;
    const std::uint32_t bits = pixels * 8;
    return pixels != 0 && bits / 8 == pixels;
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

/// The first width × height bytes of the buffer after the pixels went there in rows
/// `bytesPerLine` apart: out of place when rows are longer than the width.
Bytes stencilInput(const GreyImage& image, std::size_t bytesPerLine, Bytes& buffer) {
    for (std::size_t y = 0; y < image.height; ++y) {
        for (std::size_t x = 0; x < image.width; ++x) {
            buffer[y * bytesPerLine + x] = pixelAt(image, x, y);
        }
    }
    Bytes input;
    for (std::size_t i = 0; i < image.width * image.height; ++i) {
        input.push_back(buffer[i]);
    }
    return input;
}

void cutStencil(GreyImage& image, const PageHeader& header, bool x8, Bytes& buffer, Lines& log) {
    const Bytes input = stencilInput(image, header.bytesPerLine, buffer);
    trace(log, formatted("Copied pixels to the output buffer for QM dithering, with stride %d, "
                         "EffWidth %d",
                         static_cast<int>(header.bytesPerLine), static_cast<int>(image.stride)));
    const Bytes dots = stencil(image.width, image.height, input, x8);
    trace(log, formatted("Applied QM dithering with stride %d, width %d",
                         static_cast<int>(strideOf(image.width)), static_cast<int>(image.width)));
    image = imageFromPacked(dots, image.width, image.height);
    trace(log, "Successfully created a new RasterImage from QM dithered data");
}

void ditherPage(GreyImage& image, const PageProperties& properties, Lines& log) {
    const Bytes values =
        dither(properties.halftoneType, image.width, image.height, packedPixels(image));
    image = imageFromPacked(values, image.width, image.height);
    trace(log, "Applied default dithering and increased bit depth");
}

void halftone(GreyImage& image, const PageHeader& header, const PageProperties& properties,
              Bytes& buffer, Lines& log) {
    if (isStencil(properties)) {
        cutStencil(image, header, properties.halftoneType == 9, buffer, log);
    } else {
        ditherPage(image, properties, log);
    }
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
    const FramedImage framed = antiWrinkleFrame(image, properties.antiWrinkle,
                                                page.header.pageSizeName, whiteIndexOf(properties));
    image = framed.image;
    append(log, framed.log);
}

/// Every step up to the finished image; `buffer` is left as a stencil leaves it.
GreyImage finishedImage(const Page& page, const PageProperties& properties, Bytes& buffer,
                        Lines& log) {
    const PageHeader& header = page.header;
    GreyImage image = imageFromArray(page.rows, header.width, header.height, header.bytesPerLine);
    trace(log, formatted("Successfully created RasterImage from array with stride %d",
                         static_cast<int>(header.bytesPerLine)));
    adjustTone(image, properties, log);
    turn(image, properties, log);
    halftone(image, header, properties, buffer, log);
    invert(image, properties, log);
    frame(image, page, properties, log);
    return image;
}

/// Writes the pixels over what the buffer holds, as `processingBuffer` says.
void fillBuffer(Bytes& buffer, const GreyImage& finished, bool negative) {
    for (std::size_t y = 0; y < finished.height; ++y) {
        for (std::size_t x = 0; x < finished.width; ++x) {
            const std::uint8_t index = pixelAt(finished, x, y);
            const int value = index == 1 ? 255 : index;
            const std::size_t place = y * finished.stride + x;
            if (place < buffer.size()) {
                buffer[place] = static_cast<std::uint8_t>(negative ? 255 - value : value);
            }
        }
    }
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
    const std::size_t bufferSize = std::size_t{2} * page.header.bytesPerLine * page.header.height;
    ProcessedPage result;
    result.buffer = Bytes(bufferSize, 0);
    trace(result.log,
          isStencil(properties) ? "QM dithering is enabled" : "QM dithering is disabled");
    if (!canBeLoaded(page.header)) {
        result.log.push_back(criticalLine("rasterimage.CreateFromArray with grey failed!"));
        return result;
    }
    const GreyImage finished = finishedImage(page, properties, result.buffer, result.log);
    fillBuffer(result.buffer, finished, properties.negative);
    // The page's own height counts, not that of an image that a frame made taller.
    result.length = static_cast<std::int64_t>(page.header.height * finished.stride);
    trace(result.log, formatted("Filled the output buffer with processed pixels, length: %d",
                                static_cast<int>(result.length)));
    result.finished = finished;
    return result;
}

Bytes processingBuffer(const GreyImage& finished, bool negative, std::size_t size) {
    Bytes buffer(size, 0);
    fillBuffer(buffer, finished, negative);
    return buffer;
}

}  // namespace reference
