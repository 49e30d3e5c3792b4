#include "intake/picture/label_selection.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <optional>
#include <string_view>

#include "sizes/ascii.h"

namespace intake::picture {
namespace {

constexpr unsigned sLast = std::numeric_limits<unsigned>::max();

bool is(const OptionList& options, std::string_view name, std::string_view value) {
    const std::string* const given = options.find(name);
    return given != nullptr && sizes::equalsIgnoringCase(*given, value);
}

std::optional<unsigned> numberOf(std::string_view text) {
    unsigned number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool isNumber = error == std::errc() && end == text.data() + text.size();
    return isNumber ? std::optional(number) : std::nullopt;
}

// "3", "3-5", "3-" and "-5"
std::optional<std::pair<unsigned, unsigned>> rangeOf(std::string_view text) {
    const std::size_t dash = text.find('-');
    if (dash == std::string_view::npos) {
        const auto only = numberOf(text);
        return only ? std::optional(std::pair(*only, *only)) : std::nullopt;
    }
    const auto first = dash == 0 ? 1U : numberOf(text.substr(0, dash));
    const auto last = dash + 1 == text.size() ? sLast : numberOf(text.substr(dash + 1));
    return first && last ? std::optional(std::pair(*first, *last)) : std::nullopt;
}

}  // namespace

LabelSelection::LabelSelection(const OptionList& options)
    : hasOdd_(!is(options, "page-set", "even")), hasEven_(!is(options, "page-set", "odd")) {
    const std::string* const given = options.find("page-ranges");
    std::string_view rest = given == nullptr ? std::string_view() : *given;
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find(','), rest.size());
        if (const auto range = rangeOf(rest.substr(0, end))) {
            ranges_.push_back(*range);
        }
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
}

bool LabelSelection::has(unsigned label) const {
    const auto isIn = [label](const auto& range) {
        return range.first <= label && label <= range.second;
    };
    return (label % 2 == 0 ? hasEven_ : hasOdd_) &&
           (ranges_.empty() || std::ranges::any_of(ranges_, isIn));
}

bool isCollated(const OptionList& options) {
    const std::string* const collate = options.find("Collate");
    if (collate != nullptr && isYes(*collate)) {
        return true;
    }
    return options.has("multiple-document-handling") &&
           !is(options, "multiple-document-handling", "separate-documents-uncollated-copies");
}

}  // namespace intake::picture
