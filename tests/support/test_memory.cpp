#include "tests/support/test_memory.h"

#include <cstdlib>

namespace {

std::ptrdiff_t sLiveBlocks = 0;
bool sNoMemory = false;
int sCallsToFailure = 0;  // 0 when no call is to fail

bool isToFail() {
    const bool reached = sCallsToFailure > 0 && --sCallsToFailure == 0;
    return sNoMemory || reached;
}

void* counted(void* block) {
    sLiveBlocks += block != nullptr ? 1 : 0;
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
    return isToFail() ? nullptr : counted(__real_malloc(size));
}

void* __wrap_calloc(std::size_t count, std::size_t size) {
    return isToFail() ? nullptr : counted(__real_calloc(count, size));
}

void __wrap_free(void* block) {
    sLiveBlocks -= block != nullptr ? 1 : 0;
    __real_free(block);
}
}
// NOLINTEND(bugprone-reserved-identifier)

std::ptrdiff_t liveBlocks() {
    return sLiveBlocks;
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
