#include "sizes/nominal_size.h"

#include <array>
#include <charconv>
#include <cmath>

namespace sizes {
namespace {

bool isWholeEighthsOfAnInch(double points) {
    return std::fmod(points, pointsPerInch / 8) == 0;
}

double hundredthsOfMillimetres(double points) {
    return std::round(points * millimetresPerInch / pointsPerInch * 100) / 100;
}

std::string inItsUnit(double millimetres, LengthUnit unit) {
    return lengthText(unit == LengthUnit::Inch ? millimetres / millimetresPerInch : millimetres);
}

bool isLabelLength(double millimetres) {
    return millimetres >= shortestLength && millimetres <= longestLength;
}

const char* nameOf(LengthUnit unit) {
    return unit == LengthUnit::Inch ? "in" : "mm";
}

}  // namespace

NominalSize inMillimetres(double width, double height) {
    return {width, height, LengthUnit::Millimetre};
}

NominalSize inInches(double width, double height) {
    return {width * millimetresPerInch, height * millimetresPerInch, LengthUnit::Inch};
}

NominalSize inPoints(double width, double height) {
    if (isWholeEighthsOfAnInch(width) && isWholeEighthsOfAnInch(height)) {
        return inInches(width / pointsPerInch, height / pointsPerInch);
    }
    return inMillimetres(hundredthsOfMillimetres(width), hundredthsOfMillimetres(height));
}

bool isLabelSize(const NominalSize& size) {
    return isLabelLength(size.width) && isLabelLength(size.height);
}

NominalSize turned(const NominalSize& size) {
    return {size.height, size.width, size.unit};
}

bool isSquare(const NominalSize& size) {
    return std::abs(size.width - size.height) < 0.01;
}

std::string sizeText(const NominalSize& size) {
    return inItsUnit(size.width, size.unit) + " x " + inItsUnit(size.height, size.unit) + " " +
           nameOf(size.unit);
}

std::string sizeName(const NominalSize& size) {
    return inItsUnit(size.width, size.unit) + "x" + inItsUnit(size.height, size.unit) +
           nameOf(size.unit);
}

std::string lengthText(double length, int decimals) {
    // Room for every double: 309 figures before the point.
    std::array<char, 400> buffer;
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), length,
                                   std::chars_format::fixed, decimals);
    std::string text(buffer.data(), end.ptr);
    if (text.find('.') != std::string::npos) {
        text.erase(text.find_last_not_of('0') + 1);
        text.erase(text.find_last_not_of('.') + 1);
    }
    return text == "-0" ? "0" : text;
}

}  // namespace sizes
