#include "tspl/datamatrix_content.h"

#include "tspl/code_arguments.h"
#include "tspl/text.h"

namespace tspl {
namespace {

// Takes an identifier's two digits, which the library wants in brackets.
std::string takeIdentifier(std::string_view& rest) {
    const std::string_view digits = rest.substr(0, 2);
    if (digits.size() < 2 || digits.find_first_not_of("0123456789") != std::string_view::npos) {
        throw CodeFault("an application identifier stands behind FNC1, not \"" + printable(digits) +
                        '"');
    }
    rest.remove_prefix(digits.size());
    return std::string("[").append(digits).append("]");
}

char takeByte(std::string_view& rest) {
    constexpr std::size_t length = 3;
    const std::string_view digits = rest.substr(0, length);
    const auto value = parseInteger(digits).value_or(-1);
    if (digits.size() < length || value < 0 || value > 255) {
        throw CodeFault("a byte is 000 to 255, not \"" + printable(digits) + '"');
    }
    rest.remove_prefix(length);
    return static_cast<char>(value);
}

// What an escape character stands for together with what follows it.
std::string takeEscape(std::string_view& rest, char escape, DataMatrixContent& content) {
    const char kind = rest.empty() ? '\0' : rest.front();
    rest.remove_prefix(rest.empty() ? 0 : 1);
    if (kind == escape) {
        return {escape};
    }
    if (kind == 'd') {
        return {takeByte(rest)};
    }
    if (kind >= '@' && kind <= '_') {
        return {static_cast<char>(kind - '@')};
    }
    if (kind == '1' && (content.isGs1 || content.bytes.empty())) {
        content.isGs1 = true;
        return takeIdentifier(rest);
    }
    throw CodeFault("the escape character stands before \"" +
                    printable(std::string_view(&kind, 1)) + '"');
}

}  // namespace

DataMatrixContent dataMatrixContent(std::string_view content, std::optional<char> escape) {
    DataMatrixContent result;
    while (!content.empty()) {
        const char c = content.front();
        content.remove_prefix(1);
        if (escape && c == *escape) {
            result.bytes += takeEscape(content, c, result);
        } else {
            result.bytes += c;
        }
    }
    return result;
}

}  // namespace tspl
