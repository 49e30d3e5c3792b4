#pragma once

#include <string>

#include "tspl/label_picture.h"

namespace preview {

/// Writes a label as a PNG file of 1 bit per dot, paper white and burnt dots black, with its
/// resolution. Returns why it could not; empty when it could. A file of that name is replaced when
/// the new one is complete; until then it is called name.part.
std::string writePng(const std::string& name, const tspl::LabelPicture& picture);

}  // namespace preview
