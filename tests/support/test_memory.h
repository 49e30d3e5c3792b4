// A look at the memory that the product takes from the C library with malloc and calloc.
#pragma once

#include <cstddef>

/// Number of blocks from malloc and calloc that are not freed yet.
std::ptrdiff_t liveBlocks();

/// How many of them were asked for with this size in bytes.
std::ptrdiff_t liveBlocksOf(std::size_t size);

/// Number of calls of malloc and calloc so far.
std::ptrdiff_t blocksAskedFor();

/// As long as it lives, malloc and calloc find no memory.
class NoMemory {
public:
    NoMemory();
    ~NoMemory();
    NoMemory(const NoMemory&) = delete;
    NoMemory& operator=(const NoMemory&) = delete;
};

/// As long as it lives, one call of malloc or calloc finds no memory: the `ordinal`th since its
/// making, counted from 1.
class FailingAllocation {
public:
    explicit FailingAllocation(int ordinal);
    ~FailingAllocation();
    FailingAllocation(const FailingAllocation&) = delete;
    FailingAllocation& operator=(const FailingAllocation&) = delete;
};
