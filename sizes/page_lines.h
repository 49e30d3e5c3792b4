#pragma once

#include <string>
#include <string_view>

#include "sizes/dot_grid.h"
#include "sizes/ppd_statement.h"

namespace sizes {

/// Distances from the left and the lower edge of the paper, in points.
struct PointArea {
    double left = 0;
    double bottom = 0;
    double right = 0;
    double top = 0;
};

/// A page size as a description offers it.
struct OfferedPage {
    std::string name;  ///< "60x30mm"
    std::string text;  ///< for people; the name when empty
    PointSize paper;
    PointArea area;  ///< what is printed on
};

/// Enough for points in sixteenths.
inline constexpr int usualDecimals = 4;

/// The PostScript code that chooses a page size.
std::string pageCode(const PointSize& paper, int decimals = usualDecimals);

/// The line for a page that belongs beside `neighbour`, a line of the same kind and language.
std::string pageLine(const PpdStatement& neighbour, const OfferedPage& page,
                     int decimals = usualDecimals);

/// "*DefaultPageSize: 60x30mm" and the like.
std::string defaultLine(std::string_view keyword, std::string_view name);

}  // namespace sizes
