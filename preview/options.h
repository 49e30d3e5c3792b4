#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "preview/label_range.h"
#include "tspl/printer_model.h"

namespace preview {

/// What tsplpreview writes besides or instead of pictures.
enum class Listing {
    None,
    Text,   ///< the commands, one per line
    Json,   ///< commands, labels and findings, one JSON object per line
    Check,  ///< complaints and their number
};

/// A stream to read.
struct Source {
    /// Name of its file; "-" for standard input.
    std::string file = "-";
    /// What the names of its pictures begin with.
    std::string pictures = "label";

    [[nodiscard]] bool isStandardInput() const { return file == "-"; }
};

/// The command line.
struct Options {
    std::vector<Source> sources;
    bool writesPictures = true;
    /// Whether to show pictures as characters on standard output.
    bool showsOnTerminal = false;
    /// Name of the PDF file to write.
    std::optional<std::string> pdf;
    /// The labels to show; all of them without.
    std::optional<LabelRange> labels;
    /// Whether to show labels as they leave the printer, and not as they are read.
    bool inFeedDirection = false;
    /// Whether to read on where a file ends.
    bool follows = false;
    Listing listing = Listing::None;
    /// Whether a complaint is a failure.
    bool complaintsFail = false;
    tspl::PrinterOptions printer;
};

/// Reads the command line. Help and version go to standard output, errors to standard error; the
/// result is then the exit status: 0, 2, or 1 when the help cannot be written.
std::variant<Options, int> parseOptions(int argc, char* argv[]);

}  // namespace preview
