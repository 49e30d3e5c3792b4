#include "tspl/qrcode_content.h"

#include <algorithm>

#include "tspl/code_arguments.h"
#include "tspl/text.h"

namespace tspl {
namespace {

std::string takeBytes(std::string_view& content) {
    constexpr std::size_t lengthDigits = 4;
    const auto length = parseInteger(content.substr(0, lengthDigits)).value_or(-1);
    content.remove_prefix(std::min(content.size(), lengthDigits));
    if (length < 0 || static_cast<std::size_t>(length) > content.size()) {
        throw CodeFault("a part B has a length of four digits and as many bytes");
    }
    std::string part(content.substr(0, static_cast<std::size_t>(length)));
    content.remove_prefix(part.size());
    return part;
}

std::string takeCharacters(std::string_view& content, std::string_view all) {
    std::string part(content.substr(0, content.find('!')));
    const auto wrong = all.empty() ? std::string::npos : part.find_first_not_of(all);
    if (wrong != std::string::npos) {
        throw CodeFault("a part of the content does not have \"" +
                        printable(std::string_view(part).substr(wrong, 1)) + '"');
    }
    content.remove_prefix(part.size());
    return part;
}

std::string takePart(std::string_view& content) {
    const char kind = content.empty() ? '\0' : content.front();
    content.remove_prefix(std::min<std::size_t>(content.size(), 1));
    switch (kind) {
        case 'N':
            return takeCharacters(content, "0123456789");
        case 'A':
            return takeCharacters(content, "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ $%*+-./:");
        case 'B':
            return takeBytes(content);
        case 'K':
            return takeCharacters(content, "");
        default:
            throw CodeFault("a part of the content in mode M begins with N, A, B or K");
    }
}

}  // namespace

std::string manualQrContent(std::string_view content) {
    std::string whole = takePart(content);
    while (!content.empty()) {
        if (content.front() == '!') {
            content.remove_prefix(1);
        }
        whole += takePart(content);
    }
    if (whole.empty()) {
        throw CodeFault("there is nothing to encode");
    }
    return whole;
}

}  // namespace tspl
