#include "tests/support/test_new.h"

#include <cstdlib>
#include <new>

namespace {

std::ptrdiff_t sLiveBlocks = 0;
std::ptrdiff_t sBlocksAskedFor = 0;
std::ptrdiff_t sCallsToFailure = 0;  // 0 when no call is to fail

void* allocate(std::size_t size) {
    ++sBlocksAskedFor;
    const bool isToFail = sCallsToFailure > 0 && --sCallsToFailure == 0;
    void* block = isToFail ? nullptr : std::malloc(size != 0 ? size : 1);
    if (block == nullptr) {
        throw std::bad_alloc();
    }
    ++sLiveBlocks;
    return block;
}

void release(void* block) {
    sLiveBlocks -= block != nullptr ? 1 : 0;
    std::free(block);
}

}  // namespace

// The array forms, too: those of the sanitizers' library do not call the others.
void* operator new(std::size_t size) {
    return allocate(size);
}

void* operator new[](std::size_t size) {
    return allocate(size);
}

void operator delete(void* block) noexcept {
    release(block);
}

void operator delete(void* block, std::size_t) noexcept {
    release(block);
}

void operator delete[](void* block) noexcept {
    release(block);
}

void operator delete[](void* block, std::size_t) noexcept {
    release(block);
}

std::ptrdiff_t liveNewBlocks() {
    return sLiveBlocks;
}

std::ptrdiff_t newBlocksAskedFor() {
    return sBlocksAskedFor;
}

FailingNew::FailingNew(std::ptrdiff_t ordinal) {
    sCallsToFailure = ordinal;
}

FailingNew::~FailingNew() {
    sCallsToFailure = 0;
}
