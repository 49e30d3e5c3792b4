#pragma once

#include <optional>
#include <set>
#include <string>
#include <string_view>

#include "tspl/command.h"
#include "tspl/command_rules.h"

namespace tspl {

/// The variables that statements of BASIC give values to. What the values are is not known.
class BasicVariables {
public:
    /// Takes notice of the variables of a statement: an assignment, FOR, LET, DIM, INPUT or READ,
    /// or one of these behind THEN or ELSE.
    void note(const Command& statement);

    /// The command with 1 for each number that hangs on one of the variables; nothing where none
    /// does. Numbers are what a rule of numbers takes, and what a text or a code takes outside of
    /// quotation marks.
    [[nodiscard]] std::optional<Command> withoutThem(const Command& command,
                                                     const CommandRule& rule) const;

private:
    void noteNamesIn(std::string_view text);
    [[nodiscard]] bool areIn(std::string_view argument) const;

    std::set<std::string> names_;
};

}  // namespace tspl
