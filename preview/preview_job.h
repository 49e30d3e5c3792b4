#pragma once

#include "preview/options.h"

namespace preview {

/// Reads the streams, writes what the options ask for. Returns the exit status: 1 when a file
/// cannot be read or written, a label that is asked for does not come, or when complaints are asked
/// for and there are any; else 0.
int runPreview(const Options& options);

}  // namespace preview
