// MAXICODE x,y,mode,[class,country,post code,[low post code,]]"message"
#include <zint.h>

#include "tspl/code_arguments.h"
#include "tspl/code_commands.h"
#include "tspl/code_drawing.h"
#include "tspl/maxicode_drawing.h"
#include "tspl/text.h"

namespace tspl {
namespace {

constexpr std::int32_t sNumberedPost = 2;
constexpr std::int32_t sLetteredPost = 3;

std::string threeDigits(const std::string& argument, std::string_view what) {
    const std::string digits = std::to_string(numberFrom(argument, 0, 999, what));
    return std::string(3 - digits.size(), '0') + digits;
}

// A post code of five digits and, apart, the four of the part of a town.
std::string numberedPost(const Command& command) {
    constexpr std::size_t length = 9;
    std::string post = nameFrom(command.arguments[5]);
    if (command.arguments.size() > 7) {
        post += nameFrom(command.arguments[6]);
    }
    if (post.size() > length || post.find_first_not_of("0123456789") != std::string::npos) {
        throw CodeFault("the post code is up to nine digits, not \"" + printable(post) + '"');
    }
    return post.append(length - post.size(), '0');
}

std::string letteredPost(const Command& command) {
    constexpr std::size_t length = 6;
    std::string post = nameFrom(command.arguments[5]);
    if (post.size() > length) {
        throw CodeFault("the post code is up to six characters, not \"" + printable(post) + '"');
    }
    return post.append(length - post.size(), ' ');
}

// Where the parcel goes: post code, country and class of service.
std::string primaryOf(const Command& command, std::int32_t mode) {
    constexpr std::size_t fewest = 7;
    const bool hasPost = mode == sNumberedPost || mode == sLetteredPost;
    const std::size_t most = mode == sNumberedPost ? fewest + 1 : fewest;
    const std::size_t count = command.arguments.size();
    if (hasPost ? count < fewest || count > most : count != 4) {
        throw CodeFault(hasPost ? "a class, a country and a post code stand before the message"
                                : "nothing but the mode stands before the message");
    }
    if (!hasPost) {
        return "";
    }
    return (mode == sNumberedPost ? numberedPost(command) : letteredPost(command)) +
           threeDigits(command.arguments[4], "the country") +
           threeDigits(command.arguments[3], "the class of service");
}

}  // namespace

void drawMaxiCode(Printer& printer, const Command& command) {
    const std::int32_t mode = numberFrom(command.arguments[2], 2, 6, "the mode");
    CodeRequest request;
    request.symbology = BARCODE_MAXICODE;
    request.option1 = mode;
    request.primary = primaryOf(command, mode);
    const CodeSymbol symbol = encode(request, contentFrom(command.arguments.back()));
    const int dpi = printer.options.dpi.value_or(printer.label.dots().dpi);
    CodeDrawing drawing = drawingOf(printer, command, 0);
    drawMaxiCodeSymbol(drawing, symbol, dpi);
    printer.remark(command,
                   "the hexagons of MAXICODE are drawn alike, for " + std::to_string(dpi) + " dpi");
}

}  // namespace tspl
