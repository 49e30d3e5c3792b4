#pragma once

namespace intake {

/// Bounds what this process may take, whatever a file makes its decoder want: 1 GiB of memory
/// that is its own. Not under the sanitizers, which reserve more than that for themselves.
void boundMemory();

}  // namespace intake
