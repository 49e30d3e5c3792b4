#include "intake/picture/turn.h"

#include <algorithm>
#include <utility>

namespace intake::picture {
namespace {

GreyImage transposed(const GreyImage& image) {
    GreyImage result(image.height, image.width);
    for (unsigned row = 0; row < image.height; ++row) {
        const auto dots = image.row(row);
        for (unsigned column = 0; column < image.width; ++column) {
            result.row(column)[row] = dots[column];
        }
    }
    return result;
}

void flipAcross(GreyImage& image) {
    for (unsigned row = 0; row < image.height; ++row) {
        std::ranges::reverse(image.row(row));
    }
}

void flipDown(GreyImage& image) {
    for (unsigned row = 0; row < image.height / 2; ++row) {
        std::ranges::swap_ranges(image.row(row), image.row(image.height - 1 - row));
    }
}

}  // namespace

Turn turnOfOrientation(int orientation) {
    static constexpr std::array<Turn, 9> turns{upright,
                                               upright,
                                               mirrored,
                                               half,
                                               Turn{false, false, true},
                                               Turn{true, false, false},
                                               quarterRight,
                                               Turn{true, true, true},
                                               quarterLeft};
    const bool isKnown = orientation > 0 && orientation < static_cast<int>(turns.size());
    return isKnown ? turns.at(static_cast<std::size_t>(orientation)) : upright;
}

Turn combined(Turn first, Turn second) {
    if (second.isTransposed) {
        std::swap(first.isFlippedAcross, first.isFlippedDown);
    }
    return {first.isTransposed != second.isTransposed,
            first.isFlippedAcross != second.isFlippedAcross,
            first.isFlippedDown != second.isFlippedDown};
}

GreyImage turned(GreyImage image, Turn turn) {
    if (turn.isTransposed) {
        image = transposed(image);
    }
    if (turn.isFlippedAcross) {
        flipAcross(image);
    }
    if (turn.isFlippedDown) {
        flipDown(image);
    }
    return image;
}

}  // namespace intake::picture
