#pragma once

#include <cstdint>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

#include "tspl/command.h"

namespace tspl {

/// Why a code is not drawn.
class CodeFault : public std::runtime_error {
public:
    using runtime_error::runtime_error;
};

/// Why a code of a sound stream is not drawn.
class CodeNotDrawn : public CodeFault {
public:
    using CodeFault::CodeFault;
};

/// Reads a whole number of a command; throws CodeFault, which calls it `what`, for any that is not
/// from `least` to `most`.
std::int32_t numberFrom(const std::string& argument, std::int32_t least, std::int32_t most,
                        std::string_view what);

/// Reads the angle of a code: 0, 90, 180 or 270; throws CodeFault for any other.
int rotationFrom(const std::string& argument);

/// Reads a code's content, a text argument. Throws CodeFault when its quotation marks are missing,
/// when anything follows them or when nothing is between them, and CodeNotDrawn for what the
/// printer works out.
std::string contentFrom(const std::string& argument);

/// Reads a name, such as the type of a code, in capitals. Its quotation marks may be missing.
std::string nameFrom(const std::string& argument);

/// The arguments from `first` on that stand before the content, which is the last one.
std::span<const std::string> optionsBefore(const Command& command, std::size_t first);

/// An option of a code: a letter, as a capital, and what follows it.
struct CodeOption {
    char letter = '\0';  ///< NUL for an empty argument
    std::string value;
};

CodeOption optionFrom(const std::string& argument);

/// The fault of an option that a code does not have.
CodeFault unknownOption(const std::string& argument);

}  // namespace tspl
