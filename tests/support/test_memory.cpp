#include "tests/support/test_memory.h"

#include <algorithm>
#include <cstdlib>
#include <map>

namespace {

std::ptrdiff_t sLiveBlocks = 0;
std::ptrdiff_t sBlocksAskedFor = 0;
bool sNoMemory = false;
int sCallsToFailure = 0;  // 0 when no call is to fail

bool isToFail() {
    ++sBlocksAskedFor;
    const bool reached = sCallsToFailure > 0 && --sCallsToFailure == 0;
    return sNoMemory || reached;
}

// Sizes of the live blocks. Never destroyed: blocks can be freed later than that. The calls of the
// map itself are the standard library's, which are not led here.
std::map<const void*, std::size_t>& sizes() {
    static auto& sizes = *new std::map<const void*, std::size_t>;
    return sizes;
}

void* counted(void* block, std::size_t size) {
    if (block != nullptr) {
        ++sLiveBlocks;
        sizes()[block] = size;
    }
    return block;
}

}  // namespace

// The linker leads calls of malloc to __wrap_malloc and calls of __real_malloc to malloc; the
// names are its own.
// NOLINTBEGIN(bugprone-reserved-identifier)
extern "C" {

void* __real_malloc(std::size_t size);
void* __real_calloc(std::size_t count, std::size_t size);
void __real_free(void* block);

void* __wrap_malloc(std::size_t size);
void* __wrap_calloc(std::size_t count, std::size_t size);
void __wrap_free(void* block);

void* __wrap_malloc(std::size_t size) {
    return isToFail() ? nullptr : counted(__real_malloc(size), size);
}

void* __wrap_calloc(std::size_t count, std::size_t size) {
    return isToFail() ? nullptr : counted(__real_calloc(count, size), count * size);
}

void __wrap_free(void* block) {
    if (block != nullptr) {
        --sLiveBlocks;
        sizes().erase(block);
    }
    __real_free(block);
}
}
// NOLINTEND(bugprone-reserved-identifier)

std::ptrdiff_t liveBlocks() {
    return sLiveBlocks;
}

std::ptrdiff_t liveBlocksOf(std::size_t size) {
    return std::count_if(sizes().begin(), sizes().end(),
                         [size](const auto& block) { return block.second == size; });
}

std::ptrdiff_t blocksAskedFor() {
    return sBlocksAskedFor;
}

NoMemory::NoMemory() {
    sNoMemory = true;
}

NoMemory::~NoMemory() {
    sNoMemory = false;
}

FailingAllocation::FailingAllocation(int ordinal) {
    sCallsToFailure = ordinal;
}

FailingAllocation::~FailingAllocation() {
    sCallsToFailure = 0;
}
