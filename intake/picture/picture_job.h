#pragma once

#include "intake/picture/command_line.h"

namespace intake::picture {

/// Writes the labels of a file's pictures to a descriptor. Those that come before a damaged one
/// are written. Throws JobFailure, also when there is no label to write.
void printPictures(const CommandLine& line, int descriptor);

}  // namespace intake::picture
