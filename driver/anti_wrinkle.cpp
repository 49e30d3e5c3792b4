#include <cstring>

#include "driver/kesto_printer.h"
#include "driver/log.h"

namespace {

constexpr tagRGBQUAD white = {255, 255, 255, 0};
constexpr std::uint8_t barIndex = 255;

/// Outer size of the frame without its bars, in hundredths of a millimetre, by page size name.
struct FrameSize {
    const char* pageSizeName;
    std::uint32_t width;
    std::uint32_t height;
};

constexpr FrameSize frameSizes[] = {
    {"A4", 20000, 27500},
    {"Letter", 21000, 25700},
    {"Tattoo_A5", 20000, 11800},
    {"Tattoo_A6", 10000, 11800},
};

struct Canvas {
    int width = 0;
    int height = 0;
};

struct Bar {
    const char* name;
    std::int64_t x;
    std::int64_t y;
    std::int64_t width;
    std::int64_t height;
};

// Hundredths of a millimetre to dots, rounded to the nearest.
std::uint32_t toDots(std::uint32_t length, std::int32_t dpi) {
    return (static_cast<std::uint32_t>(dpi) * length / 254 + 5) / 10;
}

Canvas canvasFor(const char* pageSizeName, std::int32_t dpi, std::uint32_t sideBar,
                 std::uint32_t endBar) {
    for (const FrameSize& size : frameSizes) {
        if (std::strcmp(pageSizeName, size.pageSizeName) == 0) {
            const Canvas canvas = {static_cast<int>(toDots(size.width, dpi) + 2 * sideBar),
                                   static_cast<int>(toDots(size.height, dpi) + 2 * endBar)};
            kestoLogCommon(kestoLogTrace,
                           "EnableAntiWrink: Page size is %s, CanvasWidth: %d, CanvasHeight: %d",
                           size.pageSizeName, canvas.width, canvas.height);
            return canvas;
        }
    }
    return {};
}

// An odd difference leaves the enlarged image one dot short of the canvas.
bool enlargeToCanvas(RasterImage& image, Canvas canvas) {
    int exPoints = 0;
    int eyPoints = 0;
    if (image.GetWidth() < canvas.width) {
        exPoints = (canvas.width - image.GetWidth()) / 2;
        kestoLogCommon(kestoLogTrace,
                       "EnableAntiWrink: Image width is less than canvas width, exPoints: %d",
                       exPoints);
    }
    if (image.GetHeight() < canvas.height) {
        eyPoints = (canvas.height - image.GetHeight()) / 2;
        kestoLogCommon(kestoLogTrace,
                       "EnableAntiWrink: Image height is less than canvas height, eyPoints: %d",
                       eyPoints);
    }
    if (exPoints == 0 && eyPoints == 0) {
        return true;
    }
    if (!image.Expand(exPoints, eyPoints, exPoints, eyPoints, white)) {
        kestoLogCommon(kestoLogTrace, "EnableAntiWrink: Failed to expand image, returning.");
        return false;
    }
    kestoLogCommon(kestoLogTrace, "EnableAntiWrink: Image expanded successfully.");
    return true;
}

struct Offset {
    std::int64_t x = 0;
    std::int64_t y = 0;
};

Offset centreCanvas(const RasterImage& image, Canvas canvas) {
    Offset offset;
    if (image.GetWidth() > canvas.width) {
        offset.x = (image.GetWidth() - canvas.width) / 2;
        kestoLogCommon(kestoLogTrace,
                       "EnableAntiWrink: Image width is greater than canvas width, offset.x: %d",
                       static_cast<int>(offset.x));
    }
    if (image.GetHeight() > canvas.height) {
        offset.y = (image.GetHeight() - canvas.height) / 2;
        kestoLogCommon(kestoLogTrace,
                       "EnableAntiWrink: Image height is greater than canvas height, offset.y: %d",
                       static_cast<int>(offset.y));
    }
    return offset;
}

// `column` is the column counter of the drawing loops, whose last value the log shows: a bar
// without rows leaves it as the previous bar did.
void drawBar(RasterImage& image, const Bar& bar, std::int64_t& column) {
    std::int64_t row = bar.y;
    for (; row < bar.y + bar.height; ++row) {
        for (column = bar.x; column < bar.x + bar.width; ++column) {
            image.SetPixelIndex(column, row, barIndex);
        }
    }
    kestoLogCommon(kestoLogTrace, "EnableAntiWrink: Drawing %s line. point(%d, %d, %d, %d)",
                   bar.name, static_cast<int>(bar.x), static_cast<int>(bar.y),
                   static_cast<int>(column), static_cast<int>(row));
}

}  // namespace

void KestoPrinter::EnableAntiWrink(RasterImage& image) const {
    if (!image.IsValid() || pageHdr_ == nullptr) {
        kestoLogCommon(kestoLogTrace,
                       "EnableAntiWrink: Image or pageHdr_ is not valid, returning.");
        return;
    }
    const std::uint32_t endBar = toDots(100, resolution_);
    const std::uint32_t sideBar =
        toDots(static_cast<std::uint32_t>(antiWrinkle_) * 100, resolution_);
    kestoLogCommon(kestoLogTrace,
                   "EnableAntiWrink: AntiWrinkle level: %d, line_v: %d points, line_h: %d points.",
                   antiWrinkle_, static_cast<int>(sideBar), static_cast<int>(endBar));
    const Canvas canvas = canvasFor(pageHdr_->cupsPageSizeName, resolution_, sideBar, endBar);
    if (!enlargeToCanvas(image, canvas)) {
        return;
    }
    const Offset at = centreCanvas(image, canvas);
    std::int64_t column = 0;
    drawBar(image, {"left", at.x, at.y, sideBar, canvas.height}, column);
    drawBar(image, {"top", at.x, at.y, canvas.width, endBar}, column);
    drawBar(image, {"right", at.x + canvas.width - sideBar, at.y, sideBar, canvas.height}, column);
    drawBar(image, {"bottom", at.x, at.y + canvas.height - endBar, canvas.width, endBar}, column);
}
