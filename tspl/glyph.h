#pragma once

#include <cstdint>
#include <vector>

#include "tspl/fonts.h"

namespace tspl {

/// A row of dots without a gap.
struct DotRun {
    std::int32_t x = 0;
    std::int32_t y = 0;
    std::int32_t length = 0;
};

/// A character in dots, from the upper left corner of its place in the line.
struct Glyph {
    std::int32_t advance = 0;  ///< to the next character
    std::vector<DotRun> runs;
};

/// The most dots that a scalable font's characters are high or wide: a metre on some printers.
inline constexpr std::int32_t mostGlyphDots = 4096;

/// Whether a character leaves no dot in any font: blanks and codes that only steer.
bool isBlank(char32_t character);

/// Whether the character has an outline: in a downloaded font, or in any font of this system. A box
/// is drawn for one that has none.
bool hasOutline(const Font& font, char32_t character);

/// How far a character moves on, in dots: by its cell, or as its outline has it.
/// For fonts of cells `width` and `height` are those of the cell, without multiplication; for
/// scalable ones those of the font in dots, 1 to `mostGlyphDots`.
std::int32_t advanceOf(const Font& font, std::int32_t width, std::int32_t height,
                       char32_t character);

/// A character in the dots that its outline covers. Nothing lies outside of a cell; characters of
/// scalable fonts may reach out of their place. The last ones are kept: the glyph is valid up to
/// the next call.
const Glyph& drawGlyph(const Font& font, std::int32_t width, std::int32_t height,
                       char32_t character);

}  // namespace tspl
