#pragma once

#include <optional>
#include <string>

#include "tspl/command.h"
#include "tspl/printer.h"
#include "tspl/text_drawing.h"

namespace tspl {

/// What TEXT and BLOCK say of how their text looks.
struct Lettering {
    SetFont font;
    TextFrame frame;
    Alignment alignment = Alignment::Left;
    std::u32string text;
};

/// Which arguments of a command say it; 0 for an argument that the command does not have.
struct LetteringPlaces {
    std::size_t font = 0;  ///< the rotation and both multiplications follow it
    std::size_t alignment = 0;
};

/// Reads the place (the first two arguments), the looks and the text (the last one), and remarks
/// what the picture shows otherwise than paper. Nothing when a complaint says what is wrong, or a
/// remark that the text is worked out by the printer.
std::optional<Lettering> readLettering(Printer& printer, const Command& command,
                                       const LetteringPlaces& places);

/// Reads a whole number; a complaint is made of anything else, and a remark of what the printer
/// works out.
std::optional<std::int32_t> readInteger(Printer& printer, const Command& command,
                                        std::size_t index);

}  // namespace tspl
