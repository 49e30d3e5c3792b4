#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "tspl/label_picture.h"

namespace preview {

/// Room for a picture in characters; without a number of lines it may have any.
struct TerminalSize {
    std::int64_t columns = 80;
    std::optional<std::int64_t> lines;
};

/// The window of the terminal that `descriptor` is. Where it is none: the columns that the
/// environment's COLUMNS says, else 80, and any number of lines.
TerminalSize terminalSize(int descriptor);

/// A label in block characters of UTF-8, each line with its end: burnt dots are drawn, paper is
/// left blank. A character holds two square pixels, one above the other. A label of more dots than
/// the window has pixels is made smaller in both directions alike; a pixel is then the share of
/// burnt dots in its area. Where both pixels of a character are decided (at most 1/8 or at least
/// 1/2 burnt) it is a half or a full block, else a shade of their mean.
std::string terminalPicture(const tspl::LabelPicture& picture, const TerminalSize& size);

}  // namespace preview
