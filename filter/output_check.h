#pragma once

#include <cstdio>

/// Hands on what the stream has buffered. 0 when everything that was ever written to it has
/// arrived, else the system's reason why not.
int flushStream(std::FILE* stream);
