// A look at the memory that images take from the C library.
#pragma once

#include <cstddef>

/// Number of blocks from malloc and calloc that are not freed yet.
std::ptrdiff_t liveBlocks();

/// As long as it lives, malloc and calloc find no memory for the images of this process.
class NoMemory {
public:
    NoMemory();
    ~NoMemory();
    NoMemory(const NoMemory&) = delete;
    NoMemory& operator=(const NoMemory&) = delete;
};
