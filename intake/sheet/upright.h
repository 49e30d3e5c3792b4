#pragma once

#include <vector>

#include "intake/sheet/rectangle.h"
#include "sizes/nominal_size.h"

namespace intake::sheet {

/// A word of a page as it is seen.
struct Word {
    Rectangle place;
    int quarters = 0;  ///< clockwise from upright: 1 when it is read from top to bottom
};

/// By how many quarters of a turn, clockwise, a part of a page comes upright on a label: so that
/// most of the text on it, by the area of its words, is upright, when the part has the label's
/// shape then. Else, and without text, only as far as the shape asks: not, or a quarter
/// counter-clockwise, as CUPS turns pages.
int quartersToUpright(const Rectangle& part, const std::vector<Word>& words,
                      const sizes::PointSize& label);

}  // namespace intake::sheet
