#include "tests/unit/driver/failing_calloc.h"

#include <cstddef>

namespace {

int sCallsToFailure = 0;  // 0 when no call is to fail

}  // namespace

// The linker leads calls of calloc to __wrap_calloc and calls of __real_calloc to calloc; the
// names are its own.
// NOLINTBEGIN(bugprone-reserved-identifier)
extern "C" {

void* __real_calloc(std::size_t count, std::size_t size);
void* __wrap_calloc(std::size_t count, std::size_t size);

void* __wrap_calloc(std::size_t count, std::size_t size) {
    if (sCallsToFailure > 0 && --sCallsToFailure == 0) {
        return nullptr;
    }
    return __real_calloc(count, size);
}
}
// NOLINTEND(bugprone-reserved-identifier)

FailingCalloc::FailingCalloc(int ordinal) {
    sCallsToFailure = ordinal;
}

FailingCalloc::~FailingCalloc() {
    sCallsToFailure = 0;
}
