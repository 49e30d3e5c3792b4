// RSS x,y,"type",rotation,module,separator,[segments | height,]"content[|second content]"
#include <zint.h>

#include <algorithm>
#include <cmath>
#include <optional>

#include "tspl/code_arguments.h"
#include "tspl/code_commands.h"
#include "tspl/code_drawing.h"
#include "tspl/gs1_content.h"
#include "tspl/text.h"

namespace tspl {
namespace {

// What the number before the content is.
enum class Extra {
    None,
    Segments,  ///< of a row
    Height,    ///< of the linear part, in dots
};

struct DataBarType {
    std::string_view name;
    int symbology;
    int composite;  ///< the same with a second content above it
    double height;  ///< of a linear row in modules
    Extra extra = Extra::None;
    int component = 0;  ///< 1 to 3 for the sizes A to C of the second content
};

constexpr DataBarType sTypes[] = {
    {"RSS14", BARCODE_DBAR_OMN, BARCODE_DBAR_OMN_CC, 33},
    {"RSS14T", BARCODE_DBAR_OMN, BARCODE_DBAR_OMN_CC, 13},
    {"RSS14S", BARCODE_DBAR_STK, BARCODE_DBAR_STK_CC, 13},
    {"RSS14SO", BARCODE_DBAR_OMNSTK, BARCODE_DBAR_OMNSTK_CC, 33},
    {"RSSLIM", BARCODE_DBAR_LTD, BARCODE_DBAR_LTD_CC, 10},
    {"RSSEXP", BARCODE_DBAR_EXP, BARCODE_DBAR_EXP_CC, 34, Extra::Segments},
    {"UPCA", BARCODE_UPCA, BARCODE_UPCA_CC, 74},
    {"UPCE", BARCODE_UPCE, BARCODE_UPCE_CC, 74},
    {"EAN13", BARCODE_EANX, BARCODE_EANX_CC, 74},
    {"EAN8", BARCODE_EANX, BARCODE_EANX_CC, 60},
    {"UCC128CCA", BARCODE_GS1_128, BARCODE_GS1_128_CC, 0, Extra::Height, 1},
    {"UCC128CCB", BARCODE_GS1_128, BARCODE_GS1_128_CC, 0, Extra::Height, 2},
    {"UCC128CCC", BARCODE_GS1_128, BARCODE_GS1_128_CC, 0, Extra::Height, 3},
};

const DataBarType& typeOf(const std::string& name) {
    const auto* found = std::find_if(std::begin(sTypes), std::end(sTypes),
                                     [&](const DataBarType& type) { return type.name == name; });
    if (found == std::end(sTypes)) {
        throw CodeFault("there is no type \"" + printable(name) + '"');
    }
    return *found;
}

bool hasIdentifiers(const DataBarType& type) {
    return type.extra != Extra::None;
}

// Two segments are a pair of characters, by which the library counts; all of them in one row are
// another code to it.
void stack(CodeRequest& request, std::int32_t segments) {
    constexpr std::int32_t allSegments = 22;
    if (segments < allSegments) {
        const bool composite = request.symbology == BARCODE_DBAR_EXP_CC;
        request.symbology = composite ? BARCODE_DBAR_EXPSTK_CC : BARCODE_DBAR_EXPSTK;
        request.option2 = (segments + 1) / 2;
    }
}

CodeSymbol encodeDataBar(const DataBarType& type, std::optional<std::int32_t> segments,
                         const std::string& content) {
    const auto bar = content.find('|');
    const std::string first = content.substr(0, bar);
    // With its check digit the library takes it for the end of a longer number.
    if (type.name == "EAN8" && first.size() != 7) {
        throw CodeFault("EAN8 takes 7 digits, not \"" + printable(first) + '"');
    }
    CodeRequest request;
    request.symbology = bar == std::string::npos ? type.symbology : type.composite;
    if (segments) {
        stack(request, *segments);
    }
    if (bar == std::string::npos) {
        return encode(request, hasIdentifiers(type) ? gs1Content(request, first) : first);
    }
    request.option1 = type.component == 0 ? -1 : type.component;
    request.primary = hasIdentifiers(type) ? gs1Content(request, first) : first;
    const int mode = request.inputMode;
    const std::string second = gs1Content(request, content.substr(bar + 1));
    if (hasIdentifiers(type) && mode != request.inputMode) {
        throw CodeFault("identifiers of one content only stand in parentheses");
    }
    return encode(request, second);
}

struct RowHeights {
    std::int64_t linear = 0;  ///< dots of rows without a height of their own
    std::int64_t module = 0;
    std::int64_t separator = 0;  ///< modules of the rows of one module, which separate others
};

std::int64_t heightOf(const CodeSymbol::Row& row, const RowHeights& heights) {
    if (row.height == 0) {
        return heights.linear;
    }
    const auto modules = static_cast<std::int64_t>(std::lround(row.height));
    return heights.module * (modules == 1 ? heights.separator : modules);
}

void drawRows(CodeDrawing& drawing, const CodeSymbol& symbol, const RowHeights& heights) {
    std::int64_t top = 0;
    for (const CodeSymbol::Row& row : symbol.rows) {
        const std::int64_t height = heightOf(row, heights);
        drawing.drawBars(scaledRuns(row, heights.module), top, height);
        top += height;
    }
}

}  // namespace

void drawDataBar(Printer& printer, const Command& command) {
    constexpr std::int32_t usualHeight = 25;
    const DataBarType& type = typeOf(nameFrom(command.arguments[2]));
    const int rotation = rotationFrom(command.arguments[3]);
    const std::int64_t module = numberFrom(command.arguments[4], 1, 99, "the module");
    const std::int64_t separator = numberFrom(command.arguments[5], 1, 2, "the separator");
    const bool hasExtra = command.arguments.size() > 7;
    if (hasExtra && type.extra == Extra::None) {
        throw unknownOption(command.arguments[6]);
    }
    std::optional<std::int32_t> segments;
    std::int64_t linear = static_cast<std::int64_t>(type.height) * module;
    if (type.extra == Extra::Segments && hasExtra) {
        segments = numberFrom(command.arguments[6], 2, 22, "the number of segments");
    } else if (type.extra == Extra::Height) {
        linear = hasExtra ? numberFrom(command.arguments[6], 1, 99999, "the height")
                          : usualHeight * module;
    }
    const CodeSymbol symbol = encodeDataBar(type, segments, contentFrom(command.arguments.back()));
    CodeDrawing drawing = drawingOf(printer, command, rotation);
    drawRows(drawing, symbol, {linear, module, separator});
}

}  // namespace tspl
