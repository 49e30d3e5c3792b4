#include "tspl/gs1_content.h"

#include <zint.h>

#include "tspl/code_arguments.h"
#include "tspl/text.h"

namespace tspl {

std::string gs1Content(CodeRequest& request, const std::string& content) {
    constexpr std::size_t identifierDigits = 2;
    request.inputMode = GS1_MODE | GS1NOCHECK_MODE;
    if (content.find('(') != std::string::npos) {
        request.inputMode |= GS1PARENS_MODE;
        return content;
    }
    const std::string identifier = content.substr(0, identifierDigits);
    if (content.size() <= identifierDigits ||
        identifier.find_first_not_of("0123456789") != std::string::npos) {
        throw CodeFault("the content begins with an application identifier, not \"" +
                        printable(content) + '"');
    }
    return "[" + identifier + "]" + content.substr(identifierDigits);
}

}  // namespace tspl
