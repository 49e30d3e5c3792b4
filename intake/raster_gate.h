#pragma once

#include "intake/supervisor.h"

namespace intake {

/// Sleeps until a whole page header has come through a pipe, which stays in it, or the pipe has
/// ended without one; whether it has come. A raster without pages is a sync word alone, and must
/// not reach the filter: it would send the printer its preamble. Throws what Supervisor::wait
/// throws.
bool waitForPage(int pipe, Supervisor& supervisor);

}  // namespace intake
