#include "tspl/code_symbol.h"

#include <zint.h>

#include <algorithm>
#include <memory>
#include <span>

#include "tspl/code_arguments.h"
#include "tspl/text.h"

namespace tspl {
namespace {

struct Release {
    void operator()(zint_symbol* symbol) const { ZBarcode_Delete(symbol); }
};

using SymbolPointer = std::unique_ptr<zint_symbol, Release>;

// "Error 275: Invalid check digit" without the number, which means nothing to people.
std::string cleaned(std::string_view message) {
    const auto colon = message.find(": ");
    const bool numbered = message.starts_with("Error ") && colon != std::string_view::npos;
    return printable(numbered ? message.substr(colon + 2) : message);
}

void setPrimary(zint_symbol& symbol, const std::string& text) {
    const std::span<char> field(symbol.primary);
    if (text.size() >= field.size()) {
        throw CodeFault("the first part of the message is too long");
    }
    std::copy(text.begin(), text.end(), field.begin());
}

SymbolPointer prepared(const CodeRequest& request) {
    SymbolPointer symbol(ZBarcode_Create());
    if (!symbol) {
        throw std::bad_alloc();
    }
    symbol->symbology = request.symbology;
    symbol->input_mode = request.inputMode;
    symbol->option_1 = request.option1;
    symbol->option_2 = request.option2;
    symbol->option_3 = request.option3;
    symbol->output_options = request.outputOptions;
    setPrimary(*symbol, request.primary);
    return symbol;
}

// The library packs eight modules a byte, the first one lowest.
CodeSymbol::Row rowOf(const zint_symbol& symbol, int row) {
    constexpr std::size_t modulesPerByte = 8;
    CodeSymbol::Row result;
    result.height = static_cast<double>(symbol.row_height[row]);
    for (std::size_t i = 0; i < static_cast<std::size_t>(symbol.width); ++i) {
        const unsigned byte = symbol.encoded_data[row][i / modulesPerByte];
        result.modules.push_back(((byte >> (i % modulesPerByte)) & 1U) != 0);
    }
    return result;
}

}  // namespace

CodeSymbol encode(const CodeRequest& request, std::string_view content) {
    if (content.size() > ZINT_MAX_DATA_LEN) {
        throw CodeFault("no code holds " + std::to_string(content.size()) + " bytes");
    }
    const SymbolPointer symbol = prepared(request);
    const int status =
        ZBarcode_Encode(symbol.get(), reinterpret_cast<const unsigned char*>(content.data()),
                        static_cast<int>(content.size()));
    if (status >= ZINT_ERROR) {
        throw CodeFault(cleaned(symbol->errtxt));
    }
    CodeSymbol result;
    result.text = reinterpret_cast<const char*>(symbol->text);
    for (int row = 0; row < symbol->rows; ++row) {
        result.rows.push_back(rowOf(*symbol, row));
    }
    return result;
}

}  // namespace tspl
