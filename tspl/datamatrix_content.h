#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tspl {

/// What a Data Matrix holds, as libzint takes it.
struct DataMatrixContent {
    std::string bytes;
    bool isGs1 = false;  ///< begins with the function FNC1; identifiers stand in brackets
};

/// Resolves what follows the escape character, when there is one: the escape itself, d and a byte
/// of three digits, 1 for FNC1, and @ to _ for the bytes 0 to 31. Throws CodeFault for anything
/// else, and for FNC1 that does not stand before an application identifier.
DataMatrixContent dataMatrixContent(std::string_view content, std::optional<char> escape);

}  // namespace tspl
