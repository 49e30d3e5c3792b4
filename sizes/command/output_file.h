#pragma once

#include <string>
#include <string_view>

namespace sizes {

/// Makes a file, or replaces one, with this text: whole or not at all. It is written under another
/// name in the same folder and renamed, and signals wait for that. A new file gets the permissions
/// of every new file, another one keeps its own and, if this process may give it away, its owner.
/// Nothing but an ordinary file is replaced: no link, no folder and no device.
/// @throw FileFailure, Failure
void writeFile(const std::string& name, std::string_view text);

/// Writes everything to what is open; false when not everything is taken.
bool writeAll(int descriptor, std::string_view text);

/// @throw FileFailure when not everything is taken
void writeToStandardOutput(std::string_view text);

}  // namespace sizes
