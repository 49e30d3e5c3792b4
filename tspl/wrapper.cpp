#include "tspl/wrapper.h"

#include <algorithm>
#include <string>

namespace tspl {

bool isWrapper(std::string_view text) {
    // Asked again at every end of a tag, a long name would be read as often.
    constexpr std::size_t longestName = 100;
    if (!text.starts_with('<')) {
        return false;
    }
    const auto isPartOfName = [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
               c == '-' || c == '_' || c == ':';
    };
    const std::string_view start = text.substr(1, longestName + 1);
    const auto end = std::find_if_not(start.begin(), start.end(), isPartOfName);
    const std::string name(start.begin(), end);
    return !name.empty() && name.size() <= longestName && text.ends_with("</" + name + ">");
}

}  // namespace tspl
