#pragma once

#include <optional>
#include <string_view>

namespace tspl {

/// What a length of a command is given in.
enum class Unit {
    Inch,
    Millimetre,
    Dot,
};

/// A length as a command writes it.
struct Length {
    double value = 0;
    Unit unit = Unit::Inch;
    /// Half of the last decimal that is written, in the same unit: how far the length that was
    /// meant may lie from `value`. 0 for dots, whole numbers and tenths of an inch, which are
    /// exact.
    double precision = 0;
};

/// Reads "101.1 mm", "4", "4 inch" or "812 dot". A number alone is in inches, as TSPL has it.
/// Nothing when the text is no finite number with one of these units.
std::optional<Length> parseLength(std::string_view text);

/// The length in dots at a resolution, not rounded.
double lengthInDots(const Length& length, int dpi);

/// How many dots the length that was meant may lie from `lengthInDots`.
double precisionInDots(const Length& length, int dpi);

}  // namespace tspl
