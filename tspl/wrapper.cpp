#include "tspl/wrapper.h"

#include <algorithm>
#include <string>

namespace tspl {

bool isWrapper(std::string_view text) {
    if (!text.starts_with('<')) {
        return false;
    }
    const auto isPartOfName = [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
               c == '-' || c == '_' || c == ':';
    };
    const auto end = std::find_if_not(text.begin() + 1, text.end(), isPartOfName);
    const std::string name(text.begin() + 1, end);
    return !name.empty() && text.ends_with("</" + name + ">");
}

}  // namespace tspl
