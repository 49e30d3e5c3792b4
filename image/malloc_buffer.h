#pragma once

#include <cstddef>
#include <cstdlib>
#include <memory>

/// Releases memory that came from `malloc` or `calloc`.
struct FreeDeleter {
    void operator()(void* block) const { std::free(block); }
};

/// An owned block of bytes from `malloc` or `calloc`; null when the allocation failed.
using MallocBuffer = std::unique_ptr<unsigned char[], FreeDeleter>;

/// Asks for large pages where whole ones lie in a block that is not in use yet: a page of paper is
/// thousands of small ones, each of which costs an interruption when it is first written to. The
/// block may be null.
void preferLargePages(void* block, std::size_t size);
