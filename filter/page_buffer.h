#pragma once

#include <cstddef>

#include "image/malloc_buffer.h"

/// The pixel rows of one page: one block that serves all pages of a job and only grows.
class PageBuffer {
public:
    /// Makes room for `size` bytes. False when memory is short; the block then stays as it was.
    bool growTo(std::size_t size);
    unsigned char* data() const { return block_.get(); }

private:
    MallocBuffer block_;
    std::size_t capacity_ = 0;
};
