#include "preview/label_range.h"

#include <charconv>

namespace preview {
namespace {

std::optional<std::uint64_t> parseNumber(std::string_view text) {
    std::uint64_t number = 0;
    const char* end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, number);
    if (result.ec != std::errc() || result.ptr != end || number == 0) {
        return std::nullopt;
    }
    return number;
}

}  // namespace

std::optional<LabelRange> parseLabelRange(std::string_view text) {
    const std::size_t hyphen = text.find('-');
    const auto first = parseNumber(text.substr(0, hyphen));
    const auto last =
        hyphen == std::string_view::npos ? first : parseNumber(text.substr(hyphen + 1));
    if (!first || !last || *first > *last) {
        return std::nullopt;
    }
    return LabelRange{*first, *last};
}

std::string describe(const LabelRange& range) {
    const std::string first = "label " + std::to_string(range.first);
    return range.first == range.last ? first : first + "-" + std::to_string(range.last);
}

}  // namespace preview
