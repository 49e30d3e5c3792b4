#pragma once

#include <array>

#include "intake/picture/grey_image.h"

namespace intake::picture {

/// One of the eight ways in which a rectangle comes to lie on itself: its rows become columns,
/// then it is mirrored.
struct Turn {
    bool isTransposed = false;     ///< dot (column, row) goes to (row, column), before the rest
    bool isFlippedAcross = false;  ///< left and right change places
    bool isFlippedDown = false;    ///< top and bottom change places
    friend bool operator==(const Turn&, const Turn&) = default;
};

inline constexpr Turn upright{};
inline constexpr Turn quarterLeft{true, false, true};
inline constexpr Turn quarterRight{true, true, false};
inline constexpr Turn half{false, true, true};
inline constexpr Turn mirrored{false, true, false};

/// What a picture whose Exif or TIFF orientation is 1 to 8 has to undergo to be upright; any other
/// number means 1.
Turn turnOfOrientation(int orientation);

/// One turn after another.
Turn combined(Turn first, Turn second);

/// The turned image: height x width dots when the turn is transposed.
GreyImage turned(GreyImage image, Turn turn);

}  // namespace intake::picture
