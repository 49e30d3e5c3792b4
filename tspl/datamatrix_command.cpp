// DMATRIX x,y,width,height,[c#,][x#,][r#,][a#,][rows,columns,]"content"
#include <zint.h>

#include <algorithm>
#include <array>
#include <optional>

#include "tspl/code_arguments.h"
#include "tspl/code_commands.h"
#include "tspl/code_drawing.h"
#include "tspl/datamatrix_content.h"
#include "tspl/text.h"

namespace tspl {
namespace {

constexpr std::int32_t sLargestArea = 99999;

struct MatrixSize {
    std::int32_t rows = 0;
    std::int32_t columns = 0;
    bool operator==(const MatrixSize&) const = default;
};

// The library numbers the sizes from 1 in this order (ISO/IEC 16022, table 7).
constexpr std::array<MatrixSize, 30> sSizes = {
    {{10, 10}, {12, 12}, {14, 14}, {16, 16}, {18, 18},   {20, 20},   {22, 22},   {24, 24},
     {26, 26}, {32, 32}, {36, 36}, {40, 40}, {44, 44},   {48, 48},   {52, 52},   {64, 64},
     {72, 72}, {80, 80}, {88, 88}, {96, 96}, {104, 104}, {120, 120}, {132, 132}, {144, 144},
     {8, 18},  {8, 32},  {12, 26}, {12, 36}, {16, 36},   {16, 48}}};

struct MatrixOptions {
    std::optional<char> escape;
    std::int32_t module = 0;  ///< dots; 0 fills the area
    int rotation = 0;
    bool rectangular = false;
    MatrixSize size;
};

void readOption(MatrixOptions& options, const std::string& argument) {
    const auto [letter, number] = optionFrom(argument);
    switch (letter) {
        case 'C':
            options.escape = static_cast<char>(numberFrom(number, 0, 255, "the escape behind c"));
            break;
        case 'X':
            options.module = numberFrom(number, 1, 999, "the module behind x");
            break;
        case 'R':
            options.rotation = rotationFrom(number);
            break;
        case 'A':
            options.rectangular = numberFrom(number, 0, 1, "the shape behind a") == 1;
            break;
        default:
            throw unknownOption(argument);
    }
}

// Two plain numbers are the size in modules, wherever they stand.
MatrixOptions optionsOf(const Command& command) {
    constexpr std::size_t first = 4;
    MatrixOptions options;
    std::size_t sizes = 0;
    for (const std::string& argument : optionsBefore(command, first)) {
        const auto number = parseInteger(argument);
        if (!number) {
            readOption(options, argument);
            continue;
        }
        (sizes++ == 0 ? options.size.rows : options.size.columns) = *number;
    }
    if (sizes == 1 || sizes > 2) {
        throw CodeFault("a size has rows and columns");
    }
    return options;
}

int numberOf(const MatrixSize& size) {
    if (size == MatrixSize{}) {
        return 0;
    }
    const auto* found = std::find(sSizes.begin(), sSizes.end(), size);
    if (found == sSizes.end()) {
        throw CodeFault("there is no size of " + std::to_string(size.rows) + " rows and " +
                        std::to_string(size.columns) + " columns");
    }
    return static_cast<int>(found - sSizes.begin()) + 1;
}

CodeSymbol encodeInSize(CodeRequest request, int size, const std::string& content) {
    request.option2 = size;
    return encode(request, content);
}

// The smallest rectangular symbol that holds the content: the library chooses by area, and may
// choose a square.
CodeSymbol encodeRectangular(const CodeRequest& request, const std::string& content) {
    constexpr int firstRectangle = 25;
    constexpr int lastRectangle = 30;
    for (int size = firstRectangle; size < lastRectangle; ++size) {
        try {
            return encodeInSize(request, size, content);
        } catch (const CodeFault&) {
            continue;
        }
    }
    return encodeInSize(request, lastRectangle, content);
}

CodeSymbol encodeMatrix(const MatrixOptions& options, const std::string& content) {
    const auto text = dataMatrixContent(content, options.escape);
    CodeRequest request;
    request.symbology = BARCODE_DATAMATRIX;
    request.inputMode = text.isGs1 ? GS1_MODE | GS1NOCHECK_MODE : DATA_MODE;
    const int size = numberOf(options.size);
    if (size != 0) {
        return encodeInSize(request, size, text.bytes);
    }
    if (options.rectangular) {
        return encodeRectangular(request, text.bytes);
    }
    request.option3 = DM_SQUARE;
    return encode(request, text.bytes);
}

}  // namespace

void drawDataMatrix(Printer& printer, const Command& command) {
    const std::int64_t width = numberFrom(command.arguments[2], 0, sLargestArea, "the width");
    const std::int64_t height = numberFrom(command.arguments[3], 0, sLargestArea, "the height");
    const MatrixOptions options = optionsOf(command);
    const CodeSymbol symbol = encodeMatrix(options, contentFrom(command.arguments.back()));
    std::int64_t module = options.module;
    if (module == 0) {
        module = std::max<std::int64_t>(std::min(symbol.moduleIn(width), symbol.rowIn(height)), 1);
        printer.remark(command, "DMATRIX names no module; with " + std::to_string(module) +
                                    (module == 1 ? " dot" : " dots") + " it fills its area");
    }
    drawingOf(printer, command, options.rotation).drawModules(symbol, module, module);
}

}  // namespace tspl
