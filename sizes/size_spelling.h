#pragma once

#include <optional>
#include <string_view>

#include "sizes/nominal_size.h"

namespace sizes {

/// A size's name without what CUPS puts behind it.
struct BareName {
    std::string_view name;    ///< points into the text it was read from
    bool transverse = false;  ///< ".Transverse": width and height are swapped
    bool borderless = false;  ///< ".Borderless", ".FullBleed" and the like
};

/// Takes every such suffix off, in any case of letters: "A6.Transverse" is A6, transverse.
BareName bareName(std::string_view name);

/// A size from a name that holds its dimensions, in every spelling that CUPS and its clients use:
///
/// - "60x30mm", "2.25x1.25in", also cm, m, ft and pt; "4x6", which is in inches, up to 20 of them;
/// - "w288h432", in points;
/// - "Custom.73x41mm" and so on; "Custom.288x432" is in points;
/// - PWG 5101.1 self-describing names, "iso_a6_105x148mm", "oe_4x6-label_4x6in",
///   "custom_min_25x10mm", and short ones, "custom_73x41mm";
/// - each with suffixes (see bareName).
///
/// Nothing for a name without dimensions ("A6": ask CUPS), for anything besides the size, and for
/// a length that no label has. Does not depend on the locale.
std::optional<NominalSize> parseSizeSpelling(std::string_view name);

/// A size as people name it to kesto-tspl-size: width, "x", height and the unit, mm or in; plain
/// decimals of any value and nothing around them.
std::optional<NominalSize> parsePlainSize(std::string_view text);

}  // namespace sizes
