#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "sizes/printer_model.h"

namespace sizes {

/// What kesto-tspl-size writes.
enum class Product {
    Description,  ///< a queue description
    List,         ///< what would be printed, for people
    Media,        ///< the lines of a model, for kesto-tspl.drv
};

/// The command line.
struct Options {
    Product product = Product::Description;
    const PrinterModel* model = nullptr;
    /// The description to start from; the installed model's without one.
    std::optional<std::string> base;
    /// The file to write to; standard output without one.
    std::optional<std::string> output;
    /// As they are written, each of them a size of one unit.
    std::vector<std::string> sizes;
};

/// Reads the command line. Help goes to standard output, errors to standard error; the result is
/// then the exit status, 0 or 2.
std::variant<Options, int> parseCommandLine(int argc, char* argv[]);

}  // namespace sizes
