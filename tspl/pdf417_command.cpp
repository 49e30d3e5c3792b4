// PDF417 x,y,width,height,rotation,[options,]"content"
// MPDF417 x,y,rotation,[Wn,][Hn,][Cn,]"content"
#include <zint.h>

#include <algorithm>

#include "tspl/code_arguments.h"
#include "tspl/code_commands.h"
#include "tspl/code_drawing.h"
#include "tspl/text.h"

namespace tspl {
namespace {

constexpr std::int32_t sLargestArea = 99999;

struct StackOptions {
    std::int32_t level = -1;  ///< of error correction; -1 lets the encoder choose
    std::int32_t module = 0;  ///< dots from left to right; 0 fills the area
    std::int32_t row = 0;     ///< dots from top to bottom; 0 fills the area
    std::int32_t columns = 0;
    std::int32_t mostRows = 90;
    bool truncated = false;
    bool centred = false;
    bool hasText = false;
};

// U names a text line with its place, two plain numbers of its own; L and P say how the content is
// packed, which the encoder finds out.
void readOption(StackOptions& options, const std::string& argument) {
    const auto [letter, value] = optionFrom(argument);
    switch (letter) {
        case 'C':
            options.columns = numberFrom(value, 1, 30, "the number behind C");
            break;
        case 'E':
            options.level = numberFrom(value, 0, 8, "the level behind E");
            break;
        case 'H':
            options.row = numberFrom(value, 1, 99, "the height behind H");
            break;
        case 'L':
            numberFrom(value, 0, sLargestArea, "the number behind L");
            break;
        case 'M':
            options.centred = numberFrom(value, 0, 1, "the place behind M") == 1;
            break;
        case 'P':
            numberFrom(value, 0, 1, "the number behind P");
            break;
        case 'R':
            options.mostRows = numberFrom(value, 3, 90, "the number behind R");
            break;
        case 'T':
            options.truncated = numberFrom(value, 0, 1, "the number behind T") == 1;
            break;
        case 'U':
            numberFrom(value, 0, sLargestArea, "the number behind U");
            options.hasText = true;
            break;
        case 'W':
            options.module = numberFrom(value, 1, 99, "the width behind W");
            break;
        default:
            throw unknownOption(argument);
    }
}

StackOptions optionsOf(const Command& command, std::size_t first) {
    StackOptions options;
    std::size_t numbers = 0;  // that may follow
    for (const std::string& argument : optionsBefore(command, first)) {
        if (numbers > 0 && parseInteger(argument)) {
            --numbers;
            continue;
        }
        readOption(options, argument);
        numbers = optionFrom(argument).letter == 'U' ? 2 : 0;
    }
    return options;
}

CodeSymbol encodeStack(const StackOptions& options, int symbology, const std::string& content) {
    CodeRequest request;
    request.symbology = symbology;
    request.option1 = options.level;
    request.option2 = options.columns;
    CodeSymbol symbol = encode(request, content);
    if (symbol.height() > options.mostRows) {
        throw CodeFault("the content takes " + std::to_string(symbol.height()) +
                        " rows, more than R allows");
    }
    return symbol;
}

// What the options leave open fills the area, within what printers take.
void fillArea(StackOptions& options, const CodeSymbol& symbol, std::int64_t width,
              std::int64_t height) {
    if (options.module == 0) {
        options.module =
            static_cast<std::int32_t>(std::clamp<std::int64_t>(symbol.moduleIn(width), 2, 9));
    }
    if (options.row == 0) {
        options.row =
            static_cast<std::int32_t>(std::clamp<std::int64_t>(symbol.rowIn(height), 4, 99));
    }
}

}  // namespace

void drawPdf417(Printer& printer, const Command& command) {
    constexpr std::size_t firstOption = 5;
    const std::int64_t width = numberFrom(command.arguments[2], 0, sLargestArea, "the width");
    const std::int64_t height = numberFrom(command.arguments[3], 0, sLargestArea, "the height");
    const int rotation = rotationFrom(command.arguments[4]);
    StackOptions options = optionsOf(command, firstOption);
    const CodeSymbol symbol =
        encodeStack(options, options.truncated ? BARCODE_PDF417COMP : BARCODE_PDF417,
                    contentFrom(command.arguments.back()));
    if (options.module == 0 || options.row == 0) {
        fillArea(options, symbol, width, height);
        printer.remark(command, "PDF417 names no module; with " + std::to_string(options.module) +
                                    " x " + std::to_string(options.row) +
                                    " dots it fills its area");
    }
    if (options.hasText) {
        printer.remark(command, "the text beside PDF417 is not drawn");
    }
    CodeDrawing drawing = drawingOf(printer, command, rotation);
    if (options.centred) {
        drawing.shift((width - symbol.width() * options.module) / 2,
                      (height - symbol.height() * options.row) / 2);
    }
    drawing.drawModules(symbol, options.module, options.row);
}

void drawMicroPdf417(Printer& printer, const Command& command) {
    constexpr std::size_t firstOption = 3;
    constexpr std::int32_t usualRow = 10;
    const int rotation = rotationFrom(command.arguments[2]);
    StackOptions options;
    for (const std::string& argument : optionsBefore(command, firstOption)) {
        const auto [letter, value] = optionFrom(argument);
        if (letter == 'C') {
            options.columns = numberFrom(value, 0, 4, "the number behind C");
        } else if (letter == 'W' || letter == 'H') {
            readOption(options, argument);
        } else {
            throw unknownOption(argument);
        }
    }
    const CodeSymbol symbol =
        encodeStack(options, BARCODE_MICROPDF417, contentFrom(command.arguments.back()));
    drawingOf(printer, command, rotation)
        .drawModules(symbol, std::max(options.module, 1),
                     options.row == 0 ? usualRow : options.row);
}

}  // namespace tspl
