#pragma once

#include <string>

#include "intake/supervisor.h"

namespace intake {

/// Writes all that comes from a descriptor into a new temporary file. Throws JobFailure,
/// also when there is no room for the file, and what Supervisor::wait throws.
void copyToFile(int input, const std::string& path, Supervisor& supervisor);

}  // namespace intake
