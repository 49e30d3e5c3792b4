#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace preview {

/// Numbers of labels, from the first one to the last one.
struct LabelRange {
    std::uint64_t first = 1;
    std::uint64_t last = 1;

    [[nodiscard]] bool contains(std::uint64_t number) const {
        return number >= first && number <= last;
    }
};

/// Reads "5" or "3-7"; nothing for anything else, for label 0 and where the first is behind the
/// last.
std::optional<LabelRange> parseLabelRange(std::string_view text);

/// "label 5" or "label 3-7".
std::string describe(const LabelRange& range);

}  // namespace preview
