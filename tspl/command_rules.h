#pragma once

#include <limits>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "tspl/command.h"
#include "tspl/printer.h"

namespace tspl {

/// What a command's arguments are.
enum class ArgumentKind {
    Integers,
    Lengths,
    SignedLengths,  ///< may be negative
    Any,
};

/// What the reader makes of a command that it knows.
enum class Effect {
    Obeyed,    ///< changes the picture, or a setting that does
    NoMark,    ///< sets or moves something that leaves no mark on the picture
    NotDrawn,  ///< would leave a mark that is not drawn
};

/// Carries out a command whose arguments its rule has found fine.
using Obey = void (*)(Printer& printer, const Command& command);

/// What is known of a command.
struct CommandRule {
    std::string_view name;
    std::size_t fewestArguments;
    std::size_t mostArguments;
    ArgumentKind kind;
    Effect effect;
    Obey obey = nullptr;  ///< null where there is nothing to do
};

inline constexpr std::size_t anyNumber = std::numeric_limits<std::size_t>::max();

// The families of commands: syntax, check and drawing of each stand in one file.

/// The label and how it is printed (setting_commands.cpp).
std::span<const CommandRule> settingCommands();
/// Bars, frames and curves (shape_commands.cpp).
std::span<const CommandRule> shapeCommands();
/// Texts (text_commands.cpp).
std::span<const CommandRule> textCommands();
/// Bar codes and matrix codes (code_commands.cpp).
std::span<const CommandRule> codeCommands();
/// Files that the printer keeps, and pictures of them (file_commands.cpp).
std::span<const CommandRule> fileCommands();
/// Printing and moving the paper (paper_commands.cpp).
std::span<const CommandRule> paperCommands();
/// The printer itself (machine_commands.cpp).
std::span<const CommandRule> machineCommands();

/// The rule of a command, null for a name that TSPL does not have.
const CommandRule* findRule(std::string_view name);

/// Why no printer takes the command, which has the rule's name; nothing when its arguments are
/// fine.
std::optional<std::string> findFault(const CommandRule& rule, const Command& command);

/// An argument that the command's rule has found to be a whole number.
std::int32_t integer(const Command& command, std::size_t index);

/// Complains of such an argument that is not from `least` to `most`; `what` names it.
void checkRange(Printer& printer, const Command& command, std::size_t index, std::int32_t least,
                std::int32_t most, std::string_view what);

/// The beginning of the command, for people.
std::string quoted(const Command& command);

}  // namespace tspl
