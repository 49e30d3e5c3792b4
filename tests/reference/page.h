// What a job consists of: its settings and its raster pages.
#pragma once

#include <cstdint>
#include <string>

#include "tests/reference/grey_image.h"

namespace reference {

/// The fields of a raster page header that the filter uses or logs. Sizes in pixels, rows
/// and bytes; resolutions in dots per inch.
struct PageHeader {
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    std::uint32_t bytesPerLine = 0;
    std::uint32_t bitsPerPixel = 8;
    std::uint32_t bitsPerColor = 8;
    std::uint32_t colorOrder = 0;
    std::uint32_t colorSpace = 0;
    std::uint32_t compression = 0;
    std::uint32_t rowCount = 0;
    std::uint32_t rowFeed = 0;
    std::uint32_t rowStep = 0;
    std::uint32_t mediaType = 0;
    std::uint32_t xDpi = 203;
    std::uint32_t yDpi = 203;
    std::uint32_t copies = 1;
    std::string pageSizeName;
};

/// A raster page: `rows` holds height rows of bytesPerLine bytes, one grey byte per pixel.
/// A page that is not `readable` is one whose pixel data the stream cuts off.
struct Page {
    PageHeader header;
    Bytes rows;
    bool readable = true;
};

/// The job settings. Page sizes in millimetres; gapsHeight in whole millimetres.
struct Settings {
    std::string pageSize;
    float pageWidth = 0;
    float pageHeight = 0;
    std::string resolution;
    std::string mediaMethod;
    std::string paperType;
    int gapsHeight = 0;
    std::string postAction;
    std::string occurrence;
    std::string origin;
    int mirrorImage = 0;
    int negativeImage = 0;
    int halftoneType = 0;
    std::string printSpeed;
    int darkness = 0;
    int brightness = 0;
    int directBuffer = 0;
    int storedGraphics = 0;
    int optionDisplayUnit = 0;
    std::string outputFileName;
    int forceRotation = 0;
};

}  // namespace reference
