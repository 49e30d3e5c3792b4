#include "sizes/ascii.h"

#include <algorithm>

namespace sizes {

bool equalsIgnoringCase(std::string_view one, std::string_view other) {
    return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                      [](char a, char b) { return lowerCase(a) == lowerCase(b); });
}

bool startsIgnoringCase(std::string_view text, std::string_view start) {
    return equalsIgnoringCase(text.substr(0, start.size()), start);
}

bool endsIgnoringCase(std::string_view text, std::string_view end) {
    return text.size() >= end.size() &&
           equalsIgnoringCase(text.substr(text.size() - end.size()), end);
}

}  // namespace sizes
