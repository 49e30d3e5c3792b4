#pragma once

#include <cstdio>

#include "intake/sheet/command_line.h"

namespace intake::sheet {

/// Writes the labels on a file's pages to a stream, and what was found to the log. Pages on which
/// nothing like a label is, and pages that are of the label's size already, are written whole.
/// Throws JobFailure.
void cutLabels(const CommandLine& line, std::FILE* output);

}  // namespace intake::sheet
