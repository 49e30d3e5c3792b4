#pragma once

#include <span>

#include "driver/own_file.h"

/// Creates a recording of everything that the printer receives, for this user's eyes only, and logs
/// its name. Where something bears the name already, "-2", "-3" and so on stand in front of its
/// ".bin", in `name` too. Null, with one error line, when no file can be made: the job prints
/// without it.
OwnedFile openRecordingFile(std::span<char> name);
