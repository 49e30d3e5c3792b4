#pragma once

#include <string>
#include <utility>
#include <vector>

namespace intake {

/// Variables of an environment that take the place of inherited ones.
using Variables = std::vector<std::pair<std::string, std::string>>;

/// A program to start.
struct Command {
    std::string path;
    std::vector<std::string> arguments;  ///< with its own name first
    Variables variables;

    const std::string& name() const { return arguments.front(); }
};

/// This process's environment with the variables: "NAME=value".
std::vector<std::string> environmentWith(const Variables& variables);

/// What exec takes: points into the texts, with a null at the end.
std::vector<char*> pointersTo(const std::vector<std::string>& texts);

}  // namespace intake
