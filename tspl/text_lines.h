#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tspl/text_drawing.h"

namespace tspl {

/// A text at its line ends: a carriage return, a line feed, or both in any order. At least one.
std::vector<std::u32string> linesOf(std::u32string_view text);

/// The text in lines of at most `width` dots. Lines break at blanks, which then draw nothing, and
/// beside characters of East Asia; a word that is wider breaks where it must, after one
/// character at least.
std::vector<std::u32string> wrapped(const SetFont& font, std::u32string_view text,
                                    std::int64_t width);

}  // namespace tspl
