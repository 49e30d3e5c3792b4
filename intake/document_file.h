#pragma once

#include <string>

#include "intake/document_kind.h"

namespace intake {

/// What a file is. Throws JobFailure when it cannot be read.
Document documentAt(const std::string& path);

}  // namespace intake
