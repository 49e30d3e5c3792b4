#pragma once

#include <string>
#include <vector>

#include "tests/reference/page.h"

/// How often a log remarks on pages that something is wrong with. The reference knows nothing of
/// these lines; their wording is for tests of their own.
struct Remarks {
    std::size_t withoutResolution = 0;
    std::size_t contradictory = 0;  ///< ends the job
    std::size_t unreadable = 0;
    std::size_t notPrinted = 0;  ///< or not as they should be

    bool operator==(const Remarks&) const = default;
};

/// What a job of these pages calls for, given enough memory.
Remarks remarksOn(const std::vector<reference::Page>& pages);

/// What a log holds.
Remarks remarksIn(const std::string& log);

/// A log without them, and without the line on a document that is no raster.
std::string withoutRemarks(const std::string& log);
