#pragma once

#include <ctime>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "tests/reference/grey_image.h"

/// One image dump found after a job.
struct DumpFile {
    std::string name;
    std::string kind;  ///< "origin" or "dithered"
    long index = 0;    ///< the running number at the end of the name
    reference::Bytes content;
};

/// The files that a filter leaves outside its standard streams. Made before the filter starts;
/// it takes the trace file away and later collects and removes what the filter wrote.
class SpoolFiles {
public:
    SpoolFiles();

    /// The dumps of this run, by running number. Names that do not carry a local time between
    /// the start and now are left out.
    std::vector<DumpFile> takeDumps() const;
    /// Content of the trace file, if there is one.
    std::optional<std::string> takeTrace() const;
    /// Local times from the start until now, as `strftime` writes them in `format`.
    std::set<std::string> timesSinceStart(const char* format) const;

private:
    std::set<std::string> namesBefore_;
    std::time_t start_;
};
