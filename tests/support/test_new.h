// A look at the memory that the product takes with operator new.
#pragma once

#include <cstddef>

/// Number of blocks from operator new that are not freed yet.
std::ptrdiff_t liveNewBlocks();

/// Number of calls of operator new so far.
std::ptrdiff_t newBlocksAskedFor();

/// As long as it lives, one call of operator new finds no memory: the `ordinal`th since its making,
/// counted from 1.
class FailingNew {
public:
    explicit FailingNew(std::ptrdiff_t ordinal);
    ~FailingNew();
    FailingNew(const FailingNew&) = delete;
    FailingNew& operator=(const FailingNew&) = delete;
};
