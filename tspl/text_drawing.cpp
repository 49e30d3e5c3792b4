#include "tspl/text_drawing.h"

#include "tspl/glyph.h"

namespace tspl {
namespace {

bool touches(const DotCanvas& canvas, const Area& area) {
    return area.x < canvas.width() && area.x + area.width > 0 && area.y < canvas.height() &&
           area.y + area.height > 0;
}

// What a glyph may cover: its cell, or what an outline with long strokes may reach.
Area reachOf(const SetFont& font, const Area& place) {
    if (!font.font.isScalable()) {
        return place;
    }
    const std::int64_t wider = 2 * std::int64_t{font.x};
    const std::int64_t higher = 2 * std::int64_t{font.y};
    return {place.x - wider, place.y - higher, place.width + 2 * wider, place.height + 2 * higher};
}

const Glyph& glyphOf(const SetFont& font, char32_t character) {
    return font.font.isScalable()
               ? drawGlyph(font.font, font.x, font.y, character)
               : drawGlyph(font.font, font.font.cellWidth, font.font.cellHeight, character);
}

// A text may be a thousand times as long as the label: nobody counts the dots of large letters
// beside it.
bool isWorthDrawing(const DotCanvas& canvas, const TextFrame& frame, const SetFont& font,
                    const Area& place) {
    constexpr std::int32_t large = 64;
    return !font.font.isScalable() || font.y <= large ||
           touches(canvas, frame.onLabel(reachOf(font, place)));
}

void drawGlyphAt(DotCanvas& canvas, const TextFrame& frame, const SetFont& font, const Area& place,
                 char32_t character) {
    const bool isScalable = font.font.isScalable();
    const std::int64_t across = isScalable ? 1 : font.x;
    const std::int64_t down = isScalable ? 1 : font.y;
    for (const DotRun& run : glyphOf(font, character).runs) {
        canvas.fill(frame.onLabel(
            {place.x + run.x * across, place.y + run.y * down, run.length * across, down}));
    }
}

}  // namespace

std::int64_t lineHeight(const SetFont& font) {
    return font.font.isScalable() ? font.y : std::int64_t{font.y} * font.font.cellHeight;
}

std::int64_t advanceOf(const SetFont& font, char32_t character) {
    return font.font.isScalable()
               ? advanceOf(font.font, font.x, font.y, character)
               : std::int64_t{font.x} *
                     advanceOf(font.font, font.font.cellWidth, font.font.cellHeight, character);
}

std::int64_t lineWidth(const SetFont& font, std::u32string_view line) {
    std::int64_t width = 0;
    for (const char32_t character : line) {
        width += advanceOf(font, character);
    }
    return width;
}

std::int64_t startOfLine(std::int64_t width, std::int64_t room, Alignment alignment) {
    switch (alignment) {
        case Alignment::Centre:
            return (room - width) / 2;
        case Alignment::Right:
            return room - width;
        case Alignment::Left:
            break;
    }
    return 0;
}

void drawTextLine(DotCanvas& canvas, const TextFrame& frame, const SetFont& font, std::int64_t x,
                  std::int64_t y, std::u32string_view line) {
    for (const char32_t character : line) {
        const Area place{x, y, advanceOf(font, character), lineHeight(font)};
        x += place.width;
        if (isBlank(character)) {
            continue;
        }
        if (isWorthDrawing(canvas, frame, font, place)) {
            drawGlyphAt(canvas, frame, font, place, character);
        } else {
            canvas.fill(frame.onLabel(place));
        }
    }
}

}  // namespace tspl
