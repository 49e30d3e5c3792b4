#pragma once

#include <optional>
#include <string>
#include <variant>

#include "tspl/printer_model.h"

namespace preview {

/// What tsplpreview writes besides or instead of pictures.
enum class Listing {
    None,
    Text,   ///< the commands, one per line
    Json,   ///< commands, labels and findings, one JSON object per line
    Check,  ///< complaints only
};

/// The command line.
struct Options {
    /// Name of the stream's file; "-" for standard input.
    std::string input = "-";
    /// Start of the pictures' names; none when no pictures are wanted.
    std::optional<std::string> pictures;
    Listing listing = Listing::None;
    tspl::PrinterOptions printer;

    [[nodiscard]] bool readsStandardInput() const { return input == "-"; }
};

/// Reads the command line. Help and version go to standard output, errors to standard error; the
/// result is then the exit status: 0, 2, or 1 when the help cannot be written.
std::variant<Options, int> parseOptions(int argc, char* argv[]);

}  // namespace preview
