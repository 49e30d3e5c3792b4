#pragma once

#include <string>
#include <string_view>

#include "tspl/code_symbol.h"

namespace tspl {

/// How the elements of a bar code are drawn.
enum class BarShape {
    Modules,     ///< each one to four modules wide
    TwoWidths,   ///< narrow or wide
    TwoHeights,  ///< bars of one width, high or low
    Stacked,     ///< rows of modules, a line between them
};

/// A type of BARCODE.
struct BarcodeType {
    std::string_view name;
    BarShape shape;
    CodeSymbol (*encode)(const BarcodeType& type, const std::string& content);
    int symbology;                 ///< of libzint
    int option2 = 0;               ///< of libzint: mostly which check digits are added
    std::size_t fewestDigits = 0;  ///< without an add-on; 0 when the library counts
    std::size_t mostDigits = 0;
    std::size_t addOnDigits = 0;
};

/// The type of a name in capitals; throws CodeFault for one that TSPL does not have.
const BarcodeType& barcodeType(const std::string& name);

}  // namespace tspl
