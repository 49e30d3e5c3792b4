// CODABLOCK x,y,rotation,[row height,[module,]]"content"
#include <zint.h>

#include "tspl/code_arguments.h"
#include "tspl/code_commands.h"
#include "tspl/code_drawing.h"

namespace tspl {

void drawCodablock(Printer& printer, const Command& command) {
    constexpr std::int32_t usualRow = 8;
    constexpr std::int32_t usualModule = 2;
    const std::size_t count = command.arguments.size();
    const int rotation = rotationFrom(command.arguments[2]);
    const auto row =
        count > 4 ? numberFrom(command.arguments[3], 1, 999, "the height of a row") : usualRow;
    const auto module =
        count > 5 ? numberFrom(command.arguments[4], 1, 99, "the module") : usualModule;
    CodeRequest request;
    request.symbology = BARCODE_CODABLOCKF;
    const CodeSymbol symbol = encode(request, contentFrom(command.arguments.back()));
    drawingOf(printer, command, rotation).drawStack(symbol, module, row);
}

}  // namespace tspl
