#include "tests/reference/text.h"

#include <cstdarg>
#include <cstdio>

namespace reference {

std::string formatted(const char* format, ...) {
    va_list values;
    va_start(values, format);
    va_list sameValues;
    va_copy(sameValues, values);
    const int length = std::vsnprintf(nullptr, 0, format, values);
    va_end(values);

    // The string's own terminator takes the zero that vsnprintf adds.
    std::string text(static_cast<std::size_t>(length), ' ');
    std::vsnprintf(text.data(), text.size() + 1, format, sameValues);
    va_end(sameValues);
    return text;
}

std::string debugLine(const std::string& message) {
    return "DEBUG:" + message;
}

std::string errorLine(const std::string& message) {
    return "ERROR:" + message;
}

std::string criticalLine(const std::string& message) {
    return "CRIT:" + message;
}

void append(Lines& lines, const Lines& more) {
    lines.insert(lines.end(), more.begin(), more.end());
}

std::string joined(const Lines& lines) {
    std::string text;
    for (const std::string& line : lines) {
        text += line + "\n";
    }
    return text;
}

}  // namespace reference
