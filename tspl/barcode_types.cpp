#include "tspl/barcode_types.h"

#include <zint.h>

#include <algorithm>

#include "tspl/code128.h"
#include "tspl/code_arguments.h"
#include "tspl/gs1_content.h"
#include "tspl/text.h"

namespace tspl {
namespace {

bool isDigits(std::string_view text) {
    return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
}

CodeSymbol encodePlain(const BarcodeType& type, const std::string& content) {
    CodeRequest request;
    request.symbology = type.symbology;
    request.option2 = type.option2;
    return encode(request, content);
}

// Small letters and the like are two characters of Code 39 each, and some characters of Code 39
// would be, too: what it has itself is encoded as it is.
CodeSymbol encode39(const BarcodeType& type, const std::string& content) {
    constexpr std::string_view own = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ-. $/+%";
    BarcodeType chosen = type;
    if (content.find_first_not_of(own) != std::string::npos) {
        chosen.symbology = BARCODE_EXCODE39;
    }
    return encodePlain(chosen, content);
}

// Digits weigh 3 and 1 in turn, from the right.
char articleCheckDigit(std::string_view digits) {
    int sum = 0;
    for (std::size_t i = 0; i < digits.size(); ++i) {
        const int weight = (digits.size() - i) % 2 == 1 ? 3 : 1;
        sum += weight * (digits[i] - '0');
    }
    return static_cast<char>('0' + (10 - sum % 10) % 10);
}

// The library takes article numbers of a full length for others: it adds the check digit itself.
std::string withoutCheckDigit(const std::string& digits) {
    std::string number = digits.substr(0, digits.size() - 1);
    const char expected = articleCheckDigit(number);
    if (digits.back() != expected) {
        throw CodeFault(std::string("the check digit is ") + expected + ", not " + digits.back());
    }
    return number;
}

std::string countsOf(const BarcodeType& type) {
    const std::string range =
        std::to_string(type.fewestDigits) + " to " + std::to_string(type.mostDigits) + " digits";
    return type.addOnDigits == 0 ? range
                                 : range + " and " + std::to_string(type.addOnDigits) + " more";
}

// The digits of the add-on follow those of the code, with or without a plus sign between them.
CodeSymbol encodeRetail(const BarcodeType& type, const std::string& content) {
    std::string digits = content;
    digits.erase(std::remove(digits.begin(), digits.end(), '+'), digits.end());
    const std::size_t fewest = type.fewestDigits + type.addOnDigits;
    const std::size_t most = type.mostDigits + type.addOnDigits;
    if (!isDigits(digits) || digits.size() < fewest || digits.size() > most) {
        throw CodeFault(std::string(type.name) + " takes " + countsOf(type) + ", not \"" +
                        printable(content) + '"');
    }
    std::string number = digits.substr(0, digits.size() - type.addOnDigits);
    if (number.size() == type.mostDigits && type.symbology != BARCODE_UPCE) {
        number = withoutCheckDigit(number);
    }
    const std::string addOn = digits.substr(digits.size() - type.addOnDigits);
    return encodePlain(type, addOn.empty() ? number : number + "+" + addOn);
}

CodeSymbol encodeArticle(const BarcodeType& type, const std::string& content) {
    const bool isWhole = isDigits(content) && content.size() == type.mostDigits;
    return encodePlain(type, isWhole ? withoutCheckDigit(content) : content);
}

CodeSymbol encodeGs1(const BarcodeType& type, const std::string& content) {
    CodeRequest request;
    request.symbology = type.symbology;
    return encode(request, gs1Content(request, content));
}

CodeSymbol encodeManual128(const BarcodeType& /*type*/, const std::string& content) {
    return manualCode128(content);
}

constexpr BarShape sModules = BarShape::Modules;
constexpr BarShape sTwoWidths = BarShape::TwoWidths;
constexpr BarShape sTwoHeights = BarShape::TwoHeights;

constexpr BarcodeType sTypes[] = {
    {"128", sModules, encodePlain, BARCODE_CODE128},
    {"128M", sModules, encodeManual128, BARCODE_CODE128},
    {"EAN128", sModules, encodeGs1, BARCODE_GS1_128},
    {"EAN128M", sModules, encodeGs1, BARCODE_GS1_128},
    {"25", sTwoWidths, encodePlain, BARCODE_C25INTER},
    {"25C", sTwoWidths, encodePlain, BARCODE_C25INTER, 1},
    {"25S", sTwoWidths, encodePlain, BARCODE_C25STANDARD},
    {"25I", sTwoWidths, encodePlain, BARCODE_C25IND},
    {"39", sTwoWidths, encode39, BARCODE_CODE39},
    {"39C", sTwoWidths, encode39, BARCODE_CODE39, 1},
    {"39S", sTwoWidths, encodePlain, BARCODE_CODE39},
    {"LOGMARS", sTwoWidths, encodePlain, BARCODE_LOGMARS, 1},
    {"93", sModules, encodePlain, BARCODE_CODE93},
    {"EAN13", sModules, encodeRetail, BARCODE_EANX, 0, 12, 13},
    {"EAN13+2", sModules, encodeRetail, BARCODE_EANX, 0, 12, 13, 2},
    {"EAN13+5", sModules, encodeRetail, BARCODE_EANX, 0, 12, 13, 5},
    {"EAN8", sModules, encodeRetail, BARCODE_EANX, 0, 7, 8},
    {"EAN8+2", sModules, encodeRetail, BARCODE_EANX, 0, 7, 8, 2},
    {"EAN8+5", sModules, encodeRetail, BARCODE_EANX, 0, 7, 8, 5},
    {"UPCA", sModules, encodeRetail, BARCODE_UPCA, 0, 11, 12},
    {"UPCA+2", sModules, encodeRetail, BARCODE_UPCA, 0, 11, 12, 2},
    {"UPCA+5", sModules, encodeRetail, BARCODE_UPCA, 0, 11, 12, 5},
    {"UPCE", sModules, encodeRetail, BARCODE_UPCE, 0, 6, 8},
    {"UPCE+2", sModules, encodeRetail, BARCODE_UPCE, 0, 6, 8, 2},
    {"UPCE+5", sModules, encodeRetail, BARCODE_UPCE, 0, 6, 8, 5},
    {"CODA", sTwoWidths, encodePlain, BARCODE_CODABAR},
    {"POST", sTwoHeights, encodePlain, BARCODE_POSTNET},
    {"PLANET", sTwoHeights, encodePlain, BARCODE_PLANET},
    {"CPOST", sTwoWidths, encodePlain, BARCODE_C25LOGIC},
    {"MSI", sTwoWidths, encodePlain, BARCODE_MSI_PLESSEY},
    {"MSIC", sTwoWidths, encodePlain, BARCODE_MSI_PLESSEY, 1},
    {"PLESSEY", sTwoWidths, encodePlain, BARCODE_PLESSEY},
    {"ITF14", sTwoWidths, encodeArticle, BARCODE_ITF14, 0, 13, 14},
    {"EAN14", sModules, encodeArticle, BARCODE_EAN14, 0, 13, 14},
    {"11", sTwoWidths, encodePlain, BARCODE_CODE11},
    {"TELEPEN", sTwoWidths, encodePlain, BARCODE_TELEPEN},
    {"TELEPENN", sTwoWidths, encodePlain, BARCODE_TELEPEN_NUM},
    {"CODE49", BarShape::Stacked, encodePlain, BARCODE_CODE49},
    {"DPI", sTwoWidths, encodePlain, BARCODE_DPIDENT},
    {"DPL", sTwoWidths, encodePlain, BARCODE_DPLEIT},
};

}  // namespace

const BarcodeType& barcodeType(const std::string& name) {
    const auto* found = std::find_if(std::begin(sTypes), std::end(sTypes),
                                     [&](const BarcodeType& type) { return type.name == name; });
    if (found == std::end(sTypes)) {
        throw CodeFault("there is no type \"" + printable(name) + '"');
    }
    return *found;
}

}  // namespace tspl
