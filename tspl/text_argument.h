#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tspl {

/// An argument that stands in quotation marks.
struct TextArgument {
    std::string bytes;   ///< what stands between them, \["], \[R] and \[L] replaced
    std::string behind;  ///< what follows the closing one
};

/// Reads such an argument; nothing for one that begins without a quotation mark or has no second
/// one.
std::optional<TextArgument> parseTextArgument(std::string_view argument);

/// An argument that is a name, such as that of a file: what stands between its quotation marks, or
/// the argument itself, which may have none.
std::string nameOf(std::string_view argument);

/// Whether the printer works the argument out when it prints: a variable, a counter, a function or
/// several texts in a sum.
bool isExpression(std::string_view argument);

}  // namespace tspl
