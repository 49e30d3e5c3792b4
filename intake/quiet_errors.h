#pragma once

#include "intake/descriptor.h"

namespace intake {

/// While it lives nothing that is written to standard error is seen: libraries write remarks of
/// their own there, without the level that the scheduler's log wants, and what matters they tell
/// their caller.
class QuietErrors {
public:
    QuietErrors();
    ~QuietErrors();
    QuietErrors(const QuietErrors&) = delete;
    QuietErrors& operator=(const QuietErrors&) = delete;

private:
    Descriptor before_;
};

}  // namespace intake
