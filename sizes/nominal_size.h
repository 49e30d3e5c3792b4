#pragma once

#include <string>

namespace sizes {

inline constexpr double millimetresPerInch = 25.4;
inline constexpr double pointsPerInch = 72;

/// The largest length that is taken for a label's, in mm.
inline constexpr double longestLength = 10000;
/// The smallest one; CUPS knows no smaller length.
inline constexpr double shortestLength = 0.01;

/// Width and height of a page in points, 1/72 inch.
struct PointSize {
    double width = 0;
    double height = 0;
};

/// The unit in which a size is named to people.
enum class LengthUnit { Millimetre, Inch };

/// The size of a label as it is sold and asked for, in mm: across the printer and along its feed.
struct NominalSize {
    double width = 0;
    double height = 0;
    LengthUnit unit = LengthUnit::Millimetre;
};

/// The size with two lengths in mm or in inches, which is also the unit it is named in.
NominalSize inMillimetres(double width, double height);
NominalSize inInches(double width, double height);

/// The size of a page in points (1/72 inch). Named in inches when both lengths are whole eighths
/// of an inch, else in mm and rounded to hundredths, as CUPS rounds.
NominalSize inPoints(double width, double height);

/// Whether both lengths are ones that a label may have.
bool isLabelSize(const NominalSize& size);

/// Width and height swapped.
NominalSize turned(const NominalSize& size);

/// Whether width and height differ by less than CUPS can tell, a hundredth of a mm.
bool isSquare(const NominalSize& size);

/// The text for people: "60 x 30 mm", "2.25 x 1.25 in", with four decimals at most.
std::string sizeText(const NominalSize& size);

/// The name that people type and that queues offer: "60x30mm", "2.25x1.25in".
std::string sizeName(const NominalSize& size);

/// A length as PPD files and names have it: in C's notation whatever the locale, with `decimals`
/// decimals at most and no 0 at the end of them.
std::string lengthText(double length, int decimals = 4);

}  // namespace sizes
