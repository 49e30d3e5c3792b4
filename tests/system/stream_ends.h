#pragma once

#include <set>
#include <string>

#include "tests/reference/job.h"

/// Everything that a job may have sent when it ends early with whole commands only, each time
/// where the filter may end: before, between and behind the line feeds, behind a page's CLS,
/// behind its bitmap and behind its PRINT.
std::set<std::string> wholeBeginnings(const reference::Job& job);

/// As above, where it may end once a job is cancelled while it sends the bitmap of a page, pages
/// counted from 0.
std::string cancelledInBitmap(const reference::Job& job, std::size_t page);

/// Whether `tsplpreview --check` has nothing to complain of.
bool passesPreviewCheck(const std::string& stream);
