#pragma once

#include "sizes/command/command_line.h"

namespace sizes {

/// Makes what the command line asks for and writes it.
/// @throw Failure with what to tell the user
void runSizeCommand(const Options& options);

}  // namespace sizes
