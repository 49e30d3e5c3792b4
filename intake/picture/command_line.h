#pragma once

#include <optional>
#include <string>

#include "intake/option_list.h"
#include "intake/picture/label_output.h"

namespace intake::picture {

/// What the program is asked to do.
struct CommandLine {
    OutputPage page;
    OptionList options;  ///< of the job, those that place pictures and choose pages
    bool isPdf = false;  ///< else raster
    std::string file;
};

/// Reads the arguments. Nothing when they cannot be understood: the usage has been written to
/// standard error then.
std::optional<CommandLine> readCommandLine(int argc, char* argv[]);

}  // namespace intake::picture
