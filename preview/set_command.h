#pragma once

#include <optional>
#include <string>

#include "preview/command.h"

namespace preview {

/// What the SET commands have switched on of what a printer can do after a label. A printer does
/// one of them; nothing is known of what no command has set.
struct AfterLabel {
    bool tear = false;
    bool peel = false;
    bool cut = false;

    /// Whether at most one of them is on.
    [[nodiscard]] bool isBalanced() const { return int{tear} + int{peel} + int{cut} <= 1; }
};

/// Carries out a SET command. Returns why no printer takes it; nothing when it is fine.
std::optional<std::string> obeySet(const Command& command, AfterLabel& afterLabel);

}  // namespace preview
