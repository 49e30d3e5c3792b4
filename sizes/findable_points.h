#pragma once

#include <optional>

namespace sizes {

/// The length in points that means `dots` to both of CUPS's converters when they look for it among
/// the sizes of a description; in whole sixteenths, which PPD files hold exactly. Nothing when
/// there is none.
///
/// The converters round to the nearest dot, so anything within 0.45 dots will do. Best is a little
/// more than the number, which is right for programs that cut off, too. Poppler's converter cuts
/// the points to whole ones before it looks for the size, and must still find it within 1 %.
std::optional<double> findablePoints(int dots, int dpi);

}  // namespace sizes
