#pragma once

#include <cstdint>
#include <string_view>

#include "tspl/dot_canvas.h"
#include "tspl/fonts.h"
#include "tspl/text_frame.h"

namespace tspl {

/// A font at its size.
struct SetFont {
    Font font;
    /// What a command multiplies with: for fonts of cells how often a dot stands beside and under
    /// itself, 1 or more; for scalable ones their width and height in dots, 1 to `mostGlyphDots`.
    std::int32_t x = 1;
    std::int32_t y = 1;
};

/// How lines stand to the place or the width that they are given.
enum class Alignment {
    Left,
    Centre,
    Right,
};

/// Dots from one line to the next without extra space.
std::int64_t lineHeight(const SetFont& font);

/// How far a character moves on, in dots.
std::int64_t advanceOf(const SetFont& font, char32_t character);

/// How far a line of text reaches, in dots, blanks at its end included.
std::int64_t lineWidth(const SetFont& font, std::u32string_view line);

/// Where a line `width` dots long begins that is to stand so in `room` dots; it may begin left of
/// them. With a room of 0 it stands to a point.
std::int64_t startOfLine(std::int64_t width, std::int64_t room, Alignment alignment);

/// Burns the dots of a line of text. Its upper left corner lies in the frame at (x, y), each
/// character moves on by what `advanceOf` says. Line ends in the text draw nothing. Dots beside
/// the canvas are counted by it, those of letters more than 64 dots high only about.
void drawTextLine(DotCanvas& canvas, const TextFrame& frame, const SetFont& font, std::int64_t x,
                  std::int64_t y, std::u32string_view line);

}  // namespace tspl
