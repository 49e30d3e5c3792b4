#pragma once

#include <optional>
#include <string>

#include "tspl/command.h"

namespace tspl {

/// What the SET commands have switched on of what a printer can do after a label. A printer does
/// one of them; nothing is known of what no command has set.
struct AfterLabel {
    bool tear = false;
    bool peel = false;
    bool cut = false;
    bool strip = false;    ///< another name for peeling
    bool partCut = false;  ///< another kind of cutting

    /// Whether at most one of tearing, peeling and cutting is on.
    [[nodiscard]] bool isBalanced() const {
        return int{tear} + int{peel || strip} + int{cut || partCut} <= 1;
    }
};

/// Carries out a SET command. Returns why no printer takes it; nothing when it is fine.
std::optional<std::string> obeySet(const Command& command, AfterLabel& afterLabel);

}  // namespace tspl
