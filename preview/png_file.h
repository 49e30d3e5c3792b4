#pragma once

#include <string>

#include "preview/label_picture.h"

namespace preview {

/// Writes a label as a PNG file of 1 bit per dot, paper white and burnt dots black, with its
/// resolution. Replaces a file of that name. Returns why it could not; empty when it could. No
/// unfinished file is left behind.
std::string writePng(const std::string& name, const LabelPicture& picture);

}  // namespace preview
