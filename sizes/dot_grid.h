#pragma once

#include <optional>

#include "sizes/nominal_size.h"

namespace sizes {

/// Dots across and along the feed of the printer.
struct DotSize {
    int columns = 0;
    int rows = 0;
    friend bool operator==(const DotSize&, const DotSize&) = default;
};

/// A page of whole dots, and the points that mean it to CUPS's converters.
struct LabelPage {
    DotSize dots;
    PointSize points;
};

/// What a printer prints at least, in dots either way.
inline constexpr int fewestDots = 8;

/// How far a page may reach over the label's edge, in mm: labels are not cut more exactly.
inline constexpr double edgeTolerance = 0.15;

/// Dots across a label: a multiple of 8, for a page of another width prints sheared, that reaches
/// over the edge by no more than the tolerance. At 203 dpi 100 mm are 799.2 dots and give 800.
/// Lengths over the longest that a label may have count as that one.
int dotsAcross(double millimetres, int dpi);

/// Dots along the feed: the nearest number.
int dotsDown(double millimetres, int dpi);

/// The page of a label in dots. Where the label is not wider than tall the page is not either
/// (rows are added, within the tolerance): CUPS would take it for landscape and turn it.
DotSize dotsOf(const NominalSize& size, int dpi);

/// The size of so many dots.
NominalSize printedSize(const DotSize& dots, int dpi);

/// The label itself in points: what a queue's description offers, so that clients see its true
/// size.
PointSize labelPoints(const NominalSize& size);

/// The page of exactly dotsOf, for the description of one job (see job_description.h). Nothing
/// when that is less than the fewest dots.
std::optional<LabelPage> exactPage(const NominalSize& size, int dpi);

}  // namespace sizes
