#include "filter/page_buffer.h"

#include <cstdlib>

bool PageBuffer::growTo(std::size_t size) {
    if (size <= capacity_) {
        return true;
    }
    auto* grown = static_cast<unsigned char*>(std::realloc(block_.get(), size));
    if (grown == nullptr) {
        return false;
    }
    static_cast<void>(block_.release());
    block_.reset(grown);
    capacity_ = size;
    preferLargePages(grown, size);
    return true;
}
