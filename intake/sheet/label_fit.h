#pragma once

#include "sizes/nominal_size.h"

namespace intake::sheet {

/// How a part of a page fits the label that is printed.
struct LabelFit {
    bool isLabel = false;    ///< by its shape, and its size or its share of the page
    bool isOwnSize = false;  ///< by its size
    bool isAcross = false;   ///< lies where the label is upright, or the other way round
    bool isWithin = false;   ///< hardly larger than the label: printed at its size, or almost
    double shapeError = 0;   ///< by what ratio its shape differs, as a logarithm
};

/// Compares a part of a page with the label, all in points. It is a label when the ratio of its
/// sides is within 8 % of the label's, in either orientation, and both sides are within 25 % of
/// the label's, or it fills half of the page or more, with margins of a sixteenth of the page.
LabelFit fitOf(const sizes::PointSize& part, const sizes::PointSize& label,
               const sizes::PointSize& page);

/// Whether a page is the label itself, in either orientation, as exactly as CUPS tells sizes apart.
bool isLabelPage(const sizes::PointSize& page, const sizes::PointSize& label);

}  // namespace intake::sheet
