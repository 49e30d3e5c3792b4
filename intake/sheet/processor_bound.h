#pragma once

namespace intake::sheet {

/// Ends this process with a line of the log and status 1 when what is asked of it next takes more
/// than half a minute of the processor, or the library that draws gives up for want of memory.
void boundNextStep();

}  // namespace intake::sheet
