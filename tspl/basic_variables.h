#pragma once

#include <set>
#include <string>

#include "tspl/command.h"
#include "tspl/command_rules.h"

namespace tspl {

/// The variables that statements of BASIC give values to. What the values are is not known.
class BasicVariables {
public:
    /// Takes notice of the variables of a statement: an assignment, FOR, LET, DIM, INPUT or READ.
    void note(const Command& statement);

    /// Whether a number that the command takes hangs on one of the variables: any of its arguments,
    /// or, where the rule takes other things than numbers as well, its place.
    [[nodiscard]] bool areUsedBy(const Command& command, const CommandRule& rule) const;

private:
    void noteNamesIn(std::string_view text);
    [[nodiscard]] bool areIn(std::string_view argument) const;

    std::set<std::string> names_;
};

}  // namespace tspl
