// AZTEC x,y,rotation,[size,][correction,][escapes,][menu,][symbols,][reverse,]"content"
#include <zint.h>

#include <algorithm>
#include <array>

#include "tspl/code_arguments.h"
#include "tspl/code_commands.h"
#include "tspl/code_drawing.h"

namespace tspl {
namespace {

constexpr std::int32_t sRune = 300;

// The number at its place among those between the rotation and the content.
std::int32_t numberAt(const Command& command, std::size_t place, std::int32_t least,
                      std::int32_t most, std::int32_t missing, std::string_view what) {
    constexpr std::size_t first = 3;
    const std::size_t index = first + place;
    return index + 1 < command.arguments.size()
               ? numberFrom(command.arguments[index], least, most, what)
               : missing;
}

// The shares of correction that the library has, in percent, in its order from 1 on.
constexpr std::array<std::int32_t, 4> sShares = {10, 23, 36, 50};

bool isShare(std::int32_t correction) {
    return correction > 0 && correction < 100;
}

// The smallest share that is as large; the largest one where none is.
std::size_t shareFor(std::int32_t correction) {
    const auto* const found = std::lower_bound(sShares.begin(), sShares.end() - 1, correction);
    return static_cast<std::size_t>(found - sShares.begin());
}

// Correction is a share in percent, 101 to 104 for the layers of a compact code, 201 to 232 for
// those of a full one, or a rune. The library numbers compact codes first.
CodeRequest requestOf(std::int32_t correction) {
    constexpr std::int32_t compact = 100;
    constexpr std::int32_t full = 200;
    constexpr int compactSizes = 4;
    CodeRequest request;
    request.symbology = correction == sRune ? BARCODE_AZRUNE : BARCODE_AZTEC;
    if (correction > compact && correction <= compact + 4) {
        request.option2 = correction - compact;
    } else if (correction > full && correction <= full + 32) {
        request.option2 = correction - full + compactSizes;
    } else if (isShare(correction)) {
        request.option1 = static_cast<int>(shareFor(correction)) + 1;
    } else if (correction != 0 && correction != sRune) {
        throw CodeFault("there is no correction " + std::to_string(correction));
    }
    return request;
}

void remarkOtherShare(Printer& printer, const Command& command, std::int32_t correction) {
    if (!isShare(correction)) {
        return;
    }
    const std::int32_t share = sShares.at(shareFor(correction));
    if (share != correction) {
        printer.remark(command, "AZTEC is drawn with a correction of " + std::to_string(share) +
                                    " percent, not " + std::to_string(correction));
    }
}

void reverse(CodeSymbol& symbol) {
    for (CodeSymbol::Row& row : symbol.rows) {
        row.modules.flip();
    }
}

}  // namespace

void drawAztec(Printer& printer, const Command& command) {
    constexpr std::int32_t usualSize = 6;
    const int rotation = rotationFrom(command.arguments[2]);
    const auto size = numberAt(command, 0, 1, 20, usualSize, "the size");
    const auto correction = numberAt(command, 1, 0, sRune, 0, "the correction");
    CodeRequest request = requestOf(correction);
    const bool escapes = numberAt(command, 2, 0, 1, 0, "the flag of escapes") == 1;
    const bool menu = numberAt(command, 3, 0, 1, 0, "the flag of menus") == 1;
    const auto symbols = numberAt(command, 4, 1, 26, 1, "the number of symbols");
    const bool reversed = numberAt(command, 5, 0, 1, 0, "the flag of reversal") == 1;
    const std::string content = contentFrom(command.arguments.back());
    if (symbols > 1 || escapes) {
        throw CodeNotDrawn(escapes ? "it has escape sequences" : "it has more than one symbol");
    }
    request.outputOptions = menu ? READER_INIT : 0;
    CodeSymbol symbol = encode(request, content);
    if (reversed) {
        reverse(symbol);
    }
    drawingOf(printer, command, rotation).drawModules(symbol, size, size);
    remarkOtherShare(printer, command, correction);
}

}  // namespace tspl
