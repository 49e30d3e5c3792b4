#pragma once

#include <cstdlib>
#include <memory>

/// Releases memory that came from `malloc` or `calloc`.
struct FreeDeleter {
    void operator()(void* block) const { std::free(block); }
};

/// An owned block of bytes from `malloc` or `calloc`; null when the allocation failed.
using MallocBuffer = std::unique_ptr<unsigned char[], FreeDeleter>;
