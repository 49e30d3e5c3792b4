#pragma once

#include "tspl/command.h"

namespace tspl {

/// Whether a line is a statement of the BASIC that printers run: a loop, a condition, a jump, a
/// label to jump to or an assignment.
bool isBasicStatement(const Command& command);

}  // namespace tspl
