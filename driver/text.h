#pragma once

#include <cstddef>

/// The part of `path` behind its last slash or backslash, all of it without one; null for
/// null. Points into `path`.
extern "C" const char* kestoPathGetBasename(const char* path);

/// Copies at most `len` - 1 characters and fills the rest of the `len` bytes at `dst` with
/// zeros. `len` is at least 1. Returns `dst`.
extern "C" char* kestoStrCpy(char* dst, const char* src, std::size_t len);
