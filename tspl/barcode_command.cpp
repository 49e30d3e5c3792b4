// BARCODE x,y,"type",height,line,rotation,narrow,wide,[alignment,]"content"
#include <numeric>

#include "tspl/barcode_types.h"
#include "tspl/code_arguments.h"
#include "tspl/code_commands.h"
#include "tspl/code_drawing.h"
#include "tspl/readable_line.h"

namespace tspl {
namespace {

constexpr std::int32_t sWidestElement = 999;
constexpr std::int32_t sHighestBar = 99999;

struct BarcodeArguments {
    explicit BarcodeArguments(const Command& command)
        : height(numberFrom(command.arguments[3], 1, sHighestBar, "the height")),
          line(numberFrom(command.arguments[4], 0, 3, "the place of the text line")),
          rotation(rotationFrom(command.arguments[5])),
          narrow(numberFrom(command.arguments[6], 1, sWidestElement, "a narrow element")),
          wide(numberFrom(command.arguments[7], 1, sWidestElement, "a wide element")) {
        if (command.arguments.size() > 9) {
            alignment = numberFrom(command.arguments[8], 0, 3, "the alignment");
        }
    }

    std::int32_t height;
    std::int32_t line;
    int rotation;
    std::int32_t narrow;
    std::int32_t wide;
    std::int32_t alignment = 0;
};

// Some codes of two widths begin with a bar of a wide and a narrow element's width.
std::int64_t widthOfTwo(std::int64_t modules, const BarcodeArguments& arguments) {
    constexpr std::int64_t mostModulesOfWide = 3;
    if (modules <= 1) {
        return modules * arguments.narrow;
    }
    return modules <= mostModulesOfWide ? arguments.wide : arguments.wide + arguments.narrow;
}

std::vector<std::int64_t> widthsOf(const CodeSymbol::Row& row, BarShape shape,
                                   const BarcodeArguments& arguments) {
    std::vector<std::int64_t> widths = runsOf(row);
    for (std::int64_t& width : widths) {
        width =
            shape == BarShape::TwoWidths ? widthOfTwo(width, arguments) : width * arguments.narrow;
    }
    return widths;
}

// The low bars of a postal code are two fifths as high as the high ones and stand on their foot.
void drawTwoHeights(CodeDrawing& drawing, const CodeSymbol& symbol,
                    const BarcodeArguments& arguments) {
    const std::int64_t foot = (arguments.height * std::int64_t{2} + 2) / 5;
    const std::int64_t top = arguments.height - foot;
    const BarShape shape = BarShape::TwoHeights;
    drawing.drawBars(widthsOf(symbol.rows.at(0), shape, arguments), 0, top);
    drawing.drawBars(widthsOf(symbol.rows.at(1), shape, arguments), top, foot);
}

void drawBars(CodeDrawing& drawing, const CodeSymbol& symbol, BarShape shape,
              const BarcodeArguments& arguments) {
    switch (shape) {
        case BarShape::TwoHeights:
            drawTwoHeights(drawing, symbol, arguments);
            break;
        case BarShape::Stacked:
            drawing.drawStack(symbol, arguments.narrow, arguments.height);
            break;
        case BarShape::Modules:
        case BarShape::TwoWidths:
            drawing.drawBars(widthsOf(symbol.rows.at(0), shape, arguments), 0, arguments.height);
            break;
    }
}

// 0 and 1 are the left.
std::int64_t shiftOf(std::int32_t alignment, std::int64_t width) {
    constexpr std::int32_t centre = 2;
    constexpr std::int32_t right = 3;
    if (alignment == centre) {
        return -width / 2;
    }
    return alignment == right ? -width : 0;
}

}  // namespace

void drawBarcode(Printer& printer, const Command& command) {
    const BarcodeType& type = barcodeType(nameFrom(command.arguments[2]));
    const BarcodeArguments arguments(command);
    const CodeSymbol symbol = type.encode(type, contentFrom(command.arguments.back()));
    const auto widths = widthsOf(symbol.rows.at(0), type.shape, arguments);
    const std::int64_t width = std::accumulate(widths.begin(), widths.end(), std::int64_t{0});
    CodeDrawing drawing = drawingOf(printer, command, arguments.rotation);
    drawing.shift(shiftOf(arguments.alignment, width), 0);
    drawBars(drawing, symbol, type.shape, arguments);
    if (arguments.line != 0) {
        drawReadableLine(printer, command, drawing,
                         {symbol.text, arguments.line, arguments.height, width});
    }
    if (type.shape == BarShape::TwoWidths && arguments.wide <= arguments.narrow) {
        printer.complain(command,
                         "BARCODE: wide elements that are no wider than narrow ones "
                         "cannot be read");
    }
}

}  // namespace tspl
