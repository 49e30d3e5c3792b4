#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "tspl/command.h"

namespace tspl {

/// What a command's arguments are.
enum class ArgumentKind {
    Integers,
    Lengths,
    SignedLengths,  ///< may be negative
    Any,
};

/// What the previewer makes of a command that it knows.
enum class Effect {
    Obeyed,    ///< changes the picture, or a setting that does
    NoMark,    ///< sets or moves something that leaves no mark on the picture
    NotDrawn,  ///< would leave a mark that the previewer does not draw
};

/// What is known of a command.
struct CommandRule {
    std::string_view name;
    std::size_t fewestArguments;
    std::size_t mostArguments;
    ArgumentKind kind;
    Effect effect;
};

/// The rule of a command, null for a name that TSPL does not have.
const CommandRule* findRule(std::string_view name);

/// Why no printer takes the command, which has the rule's name; nothing when its arguments are
/// fine.
std::optional<std::string> findFault(const CommandRule& rule, const Command& command);

}  // namespace tspl
