#pragma once

#include <string>

#include "tests/support/temporary_folder.h"

/// What a run showed on its terminal and how it ended: its status, or minus a signal.
struct TerminalRun {
    std::string shown;
    int status = -1;
};

/// The window of a terminal; none when it has 0 columns.
struct Window {
    unsigned short columns = 0;
    unsigned short lines = 0;
};

/// Runs a shell script in a folder with a terminal for its standard streams; "$PREVIEW" is the
/// previewer.
TerminalRun runOnTerminal(const TemporaryFolder& folder, const std::string& script,
                          const Window& window = {});
