// QRCODE x,y,level,cell,mode,rotation,[J1..J9,][M1|M2,][S0..S8,]"content"
#include <zint.h>

#include "tspl/code_arguments.h"
#include "tspl/code_commands.h"
#include "tspl/code_drawing.h"
#include "tspl/qrcode_content.h"
#include "tspl/text.h"

namespace tspl {
namespace {

struct QrOptions {
    std::int32_t justification = 1;  ///< rows of three, 1 upper left, 9 lower right
    std::int32_t model = 2;
    std::int32_t mask = 8;  ///< 8 lets the encoder choose
};

// Levels L, M, Q and H are 1 to 4 to the library.
int levelFrom(const std::string& argument) {
    constexpr std::string_view levels = "LMQH";
    const std::string name = nameFrom(argument);
    if (name.size() != 1 || levels.find(name) == std::string_view::npos) {
        throw CodeFault("the level is L, M, Q or H, not \"" + printable(argument) + '"');
    }
    return static_cast<int>(levels.find(name)) + 1;
}

bool isManual(const std::string& argument) {
    const std::string name = nameFrom(argument);
    if (name != "A" && name != "M") {
        throw CodeFault("the mode is A or M, not \"" + printable(argument) + '"');
    }
    return name == "M";
}

// Options are a letter and a number, in any order.
void readOption(QrOptions& options, const std::string& argument) {
    const auto [letter, number] = optionFrom(argument);
    switch (letter) {
        case 'J':
            options.justification = numberFrom(number, 1, 9, "the justification behind J");
            break;
        case 'M':
            options.model = numberFrom(number, 1, 2, "the model behind M");
            break;
        case 'S':
            options.mask = numberFrom(number, 0, 8, "the mask behind S");
            break;
        default:
            throw unknownOption(argument);
    }
}

QrOptions optionsOf(const Command& command) {
    constexpr std::size_t first = 6;
    QrOptions options;
    for (const std::string& argument : optionsBefore(command, first)) {
        readOption(options, argument);
    }
    return options;
}

CodeRequest requestOf(int level, std::int32_t mask) {
    constexpr std::int32_t automatic = 8;
    constexpr int maskUnit = 256;
    CodeRequest request;
    request.symbology = BARCODE_QRCODE;
    request.option1 = level;
    request.option3 = mask == automatic ? 0 : (mask + 1) * maskUnit;
    return request;
}

}  // namespace

void drawQrCode(Printer& printer, const Command& command) {
    const int level = levelFrom(command.arguments[2]);
    const std::int64_t cell = numberFrom(command.arguments[3], 1, 10, "the cell width");
    const bool manual = isManual(command.arguments[4]);
    const int rotation = rotationFrom(command.arguments[5]);
    const QrOptions options = optionsOf(command);
    const std::string content = contentFrom(command.arguments.back());
    const CodeSymbol symbol =
        encode(requestOf(level, options.mask), manual ? manualQrContent(content) : content);
    CodeDrawing drawing = drawingOf(printer, command, rotation);
    const std::int64_t side = symbol.width() * cell;
    drawing.shift(-side * ((options.justification - 1) % 3) / 2,
                  -side * ((options.justification - 1) / 3) / 2);
    drawing.drawModules(symbol, cell, cell);
    if (options.model == 1) {
        printer.remark(command, "QRCODE of model 1 is drawn as model 2");
    }
}

}  // namespace tspl
