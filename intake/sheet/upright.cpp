#include "intake/sheet/upright.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

namespace intake::sheet {
namespace {

bool isInside(const Rectangle& word, const Rectangle& part) {
    const double x = (word.left + word.right) / 2;
    const double y = (word.top + word.bottom) / 2;
    return x >= part.left && x <= part.right && y >= part.top && y <= part.bottom;
}

// The turn that most of the text has.
std::optional<int> turnOfText(const Rectangle& part, const std::vector<Word>& words) {
    std::array<double, 4> areas{};
    for (const Word& word : words) {
        if (isInside(word.place, part)) {
            areas.at(static_cast<std::size_t>(word.quarters & 3)) +=
                std::abs(word.place.width() * word.place.height());
        }
    }
    const auto most = std::ranges::max_element(areas);
    return *most > 0 ? std::optional(static_cast<int>(most - areas.begin())) : std::nullopt;
}

// How far a shape is from another one.
double difference(double ratio, double otherRatio) {
    return std::abs(std::log(ratio / otherRatio));
}

}  // namespace

int quartersToUpright(const Rectangle& part, const std::vector<Word>& words,
                      const sizes::PointSize& label) {
    constexpr double same = 0.02;
    const double ratio = part.width() / part.height();
    const double labelRatio = label.width / label.height;
    const double asItIs = difference(ratio, labelRatio);
    const double turned = difference(1 / ratio, labelRatio);
    const auto text = turnOfText(part, words);
    const int upright = (4 - text.value_or(0)) % 4;
    const bool isQuarter = upright % 2 == 1;
    if (text && (isQuarter ? turned : asItIs) <= (isQuarter ? asItIs : turned) + same) {
        return upright;
    }
    return asItIs <= turned + same ? 0 : 3;
}

}  // namespace intake::sheet
