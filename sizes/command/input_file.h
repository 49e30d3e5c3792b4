#pragma once

#include <cstddef>
#include <string>

namespace sizes {

/// No PPD file is as large as this, and much that is not one has no end.
inline constexpr std::size_t largestDescription = 16U << 20U;

/// Everything up to the end of a file.
/// @throw FileFailure when it cannot be read, Failure when it is too large
std::string readFile(const std::string& name);

/// Everything up to the end of what is open; `name` is for messages.
std::string readAll(int descriptor, const std::string& name);

}  // namespace sizes
