#pragma once

#include <optional>
#include <string>

#include "intake/option_list.h"
#include "intake/sheet/label_matrix.h"

namespace intake::sheet {

/// What the program is asked to do.
struct CommandLine {
    LabelSides sides;
    OptionList options;  ///< of the job, those that choose pages
    std::string file;
};

/// Reads the arguments. Nothing when they cannot be understood: the usage has been written to
/// standard error then.
std::optional<CommandLine> readCommandLine(int argc, char* argv[]);

}  // namespace intake::sheet
