#include "tests/reference/anti_wrinkle.h"

#include <cstddef>

#include "tests/reference/transforms.h"

namespace reference {

namespace {

const std::uint32_t kDotsPerInch = 300;

/// Frame size without the bars, in hundredths of a millimetre.
struct BaseSize {
    std::uint32_t width;
    std::uint32_t height;
};

BaseSize baseSizeOf(const std::string& name) {
    if (name == "A4") {
        return {20000, 27500};
    }
    if (name == "Letter") {
        return {21000, 25700};
    }
    if (name == "Tattoo_A5") {
        return {20000, 11800};
    }
    if (name == "Tattoo_A6") {
        return {10000, 11800};
    }
    return {0, 0};
}

/// The image while its frame is drawn. `column` and `row` are the counters of the drawing
/// loops, which the trace shows; `column` keeps its value over a bar without rows.
struct Drawing {
    GreyImage image;
    Lines log;
    std::int64_t column = 0;
    std::int64_t row = 0;
};

void trace(Drawing& drawing, const std::string& message) {
    drawing.log.push_back(debugLine("EnableAntiWrink: " + message));
}

void traceSizes(Drawing& drawing, int level, const std::string& name, const FrameSize& frame) {
    trace(drawing, formatted("AntiWrinkle level: %d, line_v: %d points, line_h: %d points.", level,
                             static_cast<int>(frame.lineV), static_cast<int>(frame.lineH)));
    if (frame.width != 0) {
        trace(drawing, formatted("Page size is %s, CanvasWidth: %d, CanvasHeight: %d", name.c_str(),
                                 static_cast<int>(frame.width), static_cast<int>(frame.height)));
    }
}

void enlarge(Drawing& drawing, const FrameSize& frame, std::uint8_t whiteIndex) {
    std::size_t sideMargin = 0;
    std::size_t endMargin = 0;
    if (drawing.image.width < frame.width) {
        sideMargin = (frame.width - drawing.image.width) / 2;
        trace(drawing, formatted("Image width is less than canvas width, exPoints: %d",
                                 static_cast<int>(sideMargin)));
    }
    if (drawing.image.height < frame.height) {
        endMargin = (frame.height - drawing.image.height) / 2;
        trace(drawing, formatted("Image height is less than canvas height, eyPoints: %d",
                                 static_cast<int>(endMargin)));
    }
    if (sideMargin != 0 || endMargin != 0) {
        const Margins margins{sideMargin, endMargin, sideMargin, endMargin};
        drawing.image = expand(drawing.image, margins, whiteIndex);
        trace(drawing, "Image expanded successfully.");
    }
}

std::int64_t offsetX(Drawing& drawing, const FrameSize& frame) {
    if (drawing.image.width <= frame.width) {
        return 0;
    }
    const auto offset = static_cast<std::int64_t>((drawing.image.width - frame.width) / 2);
    trace(drawing, formatted("Image width is greater than canvas width, offset.x: %d",
                             static_cast<int>(offset)));
    return offset;
}

std::int64_t offsetY(Drawing& drawing, const FrameSize& frame) {
    if (drawing.image.height <= frame.height) {
        return 0;
    }
    const auto offset = static_cast<std::int64_t>((drawing.image.height - frame.height) / 2);
    trace(drawing, formatted("Image height is greater than canvas height, offset.y: %d",
                             static_cast<int>(offset)));
    return offset;
}

/// A filled bar: its first column and row, its width and height in dots.
struct Bar {
    const char* name;
    std::int64_t x;
    std::int64_t y;
    std::int64_t width;
    std::int64_t height;
};

void drawBar(Drawing& drawing, const Bar& bar) {
    for (drawing.row = bar.y; drawing.row < bar.y + bar.height; ++drawing.row) {
        for (drawing.column = bar.x; drawing.column < bar.x + bar.width; ++drawing.column) {
            setPixel(drawing.image, drawing.column, drawing.row, 255);
        }
    }
    trace(drawing, formatted("Drawing %s line. point(%d, %d, %d, %d)", bar.name,
                             static_cast<int>(bar.x), static_cast<int>(bar.y),
                             static_cast<int>(drawing.column), static_cast<int>(drawing.row)));
}

void drawFrame(Drawing& drawing, const FrameSize& frame, std::int64_t x, std::int64_t y) {
    const std::int64_t width = frame.width;
    const std::int64_t height = frame.height;
    const std::int64_t lineH = frame.lineH;
    const std::int64_t lineV = frame.lineV;
    drawBar(drawing, {"left", x, y, lineV, height});
    drawBar(drawing, {"top", x, y, width, lineH});
    drawBar(drawing, {"right", x + width - lineV, y, lineV, height});
    drawBar(drawing, {"bottom", x, y + height - lineH, width, lineH});
}

}  // namespace

std::uint32_t dotsOf(std::uint32_t hundredths) {
    return (kDotsPerInch * hundredths / 254 + 5) / 10;
}

FrameSize frameSizeOf(int level, const std::string& pageSizeName) {
    FrameSize frame;
    frame.lineH = dotsOf(100);
    frame.lineV = dotsOf(static_cast<std::uint32_t>(level) * 100);
    const BaseSize base = baseSizeOf(pageSizeName);
    if (base.width != 0) {
        frame.width = dotsOf(base.width) + 2 * frame.lineV;
        frame.height = dotsOf(base.height) + 2 * frame.lineH;
    }
    return frame;
}

FramedImage antiWrinkleFrame(const GreyImage& image, int level, const std::string& pageSizeName,
                             std::uint8_t whiteIndex) {
    Drawing drawing{image, {}, 0, 0};
    const FrameSize frame = frameSizeOf(level, pageSizeName);
    traceSizes(drawing, level, pageSizeName, frame);
    enlarge(drawing, frame, whiteIndex);
    const std::int64_t x = offsetX(drawing, frame);
    const std::int64_t y = offsetY(drawing, frame);
    drawFrame(drawing, frame, x, y);
    return {drawing.image, drawing.log};
}

}  // namespace reference
