#pragma once

#include <string>

#include "intake/option_list.h"

namespace intake {

/// Reads the options that a filter is called with, as every filter of CUPS does.
OptionList readOptions(const std::string& text);

}  // namespace intake
