#pragma once

#include <string_view>

namespace tspl {

/// Whether the text is an XML element with a start tag and an end tag of the same name, whatever is
/// between them, and nothing else; a name of at most 100 letters. Some programs put such elements
/// in front of commands.
bool isWrapper(std::string_view text);

}  // namespace tspl
