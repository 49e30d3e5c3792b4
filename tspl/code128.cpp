#include "tspl/code128.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "tspl/code_arguments.h"
#include "tspl/text.h"

namespace tspl {
namespace {

// The widths of bars and spaces of each value, beginning with a bar; the last one is the stop.
constexpr std::array<std::string_view, 107> sPatterns = {
    "212222", "222122", "222221", "121223", "121322", "131222", "122213", "122312", "132212",
    "221213", "221312", "231212", "112232", "122132", "122231", "113222", "123122", "123221",
    "223211", "221132", "221231", "213212", "223112", "312131", "311222", "321122", "321221",
    "312212", "322112", "322211", "212123", "212321", "232121", "111323", "131123", "131321",
    "112313", "132113", "132311", "211313", "231113", "231311", "112133", "112331", "132131",
    "113123", "113321", "133121", "313121", "211331", "231131", "213113", "213311", "213131",
    "311123", "311321", "331121", "312113", "312311", "332111", "314111", "221411", "431111",
    "111224", "111422", "121124", "121421", "141122", "141221", "112214", "112412", "122114",
    "122411", "142112", "142211", "241211", "221114", "413111", "241112", "134111", "111242",
    "121142", "121241", "114212", "124112", "124211", "411212", "421112", "421211", "212141",
    "214121", "412121", "111143", "111341", "131141", "114113", "114311", "411113", "411311",
    "113141", "114131", "311141", "411131", "211412", "211214", "211232", "2331112"};

constexpr int sShift = 98;
constexpr int sToC = 99;
constexpr int sToB = 100;
constexpr int sToA = 101;
constexpr int sStartA = 103;
constexpr int sStartB = 104;
constexpr int sStartC = 105;
constexpr std::size_t sStop = 106;
constexpr std::size_t sModulus = 103;

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

// The value of a control at the start of the text, which is an exclamation mark and three digits.
std::optional<int> controlAt(std::string_view text) {
    constexpr std::size_t length = 4;
    if (text.size() < length || text[0] != '!') {
        return std::nullopt;
    }
    const auto value = parseInteger(text.substr(1, length - 1));
    return value && *value >= 96 && *value <= sStartC ? value : std::nullopt;
}

// Collects the values of a code and follows its subsets.
class Writer {
public:
    void control(int value) {
        if (value >= sStartA && !values_.empty()) {
            throw CodeFault("a start stands within the code: !" + std::to_string(value));
        }
        if (value < sStartA) {
            begin();
        }
        values_.push_back(value);
        shifted_ = value == sShift && subset_ != 'C';
        subset_ = subsetAfter(value);
    }

    // Takes a character, or the two digits of one in subset C; returns how many bytes it took.
    std::size_t take(std::string_view text) {
        begin();
        if (subset_ == 'C') {
            return takePair(text);
        }
        values_.push_back(valueIn(shifted_ ? otherSubset() : subset_, text.front()));
        shifted_ = false;
        return 1;
    }

    [[nodiscard]] const std::vector<int>& values() {
        begin();
        return values_;
    }

private:
    void begin() {
        if (values_.empty()) {
            values_.push_back(sStartB);
        }
    }

    [[nodiscard]] char otherSubset() const { return subset_ == 'A' ? 'B' : 'A'; }

    // The value that names a subset is another function within that subset.
    [[nodiscard]] char subsetAfter(int value) const {
        if (value == sStartA || value == sToA) {
            return 'A';
        }
        if (value == sStartB || value == sToB) {
            return 'B';
        }
        return value == sStartC || value == sToC ? 'C' : subset_;
    }

    std::size_t takePair(std::string_view text) {
        if (text.size() < 2 || !isDigit(text[0]) || !isDigit(text[1])) {
            throw CodeFault("subset C takes pairs of digits, not " + printable(text.substr(0, 2)));
        }
        values_.push_back((text[0] - '0') * 10 + text[1] - '0');
        return 2;
    }

    // Subset A has the control characters behind the capitals, B the small letters.
    static int valueIn(char subset, char c) {
        const int byte = static_cast<unsigned char>(c);
        if (subset == 'A' && byte < 32) {
            return byte + 64;
        }
        if (byte < 32 || byte > (subset == 'A' ? 95 : 127)) {
            throw CodeFault(std::string("subset ") + subset + " does not have " +
                            printable(std::string_view(&c, 1)));
        }
        return byte - 32;
    }

    std::vector<int> values_;
    char subset_ = 'B';
    bool shifted_ = false;
};

std::size_t checkOf(const std::vector<int>& values) {
    auto sum = static_cast<std::size_t>(values.front());
    for (std::size_t i = 1; i < values.size(); ++i) {
        sum += i * static_cast<std::size_t>(values[i]);
    }
    return sum % sModulus;
}

void addPattern(CodeSymbol::Row& row, std::size_t value) {
    bool dark = true;
    for (const char width : sPatterns.at(value)) {
        row.modules.insert(row.modules.end(), static_cast<std::size_t>(width - '0'), dark);
        dark = !dark;
    }
}

}  // namespace

CodeSymbol manualCode128(std::string_view content) {
    Writer writer;
    std::string text;
    while (!content.empty()) {
        if (const auto control = controlAt(content)) {
            writer.control(*control);
            content.remove_prefix(4);
            continue;
        }
        const std::size_t taken = writer.take(content);
        text += content.substr(0, taken);
        content.remove_prefix(taken);
    }
    CodeSymbol symbol;
    CodeSymbol::Row& row = symbol.rows.emplace_back();
    for (const int value : writer.values()) {
        addPattern(row, static_cast<std::size_t>(value));
    }
    addPattern(row, checkOf(writer.values()));
    addPattern(row, sStop);
    symbol.text = text;
    return symbol;
}

}  // namespace tspl
