#include "tspl/length.h"

#include <charconv>
#include <cmath>

#include "tspl/text.h"

namespace tspl {
namespace {

std::optional<Unit> parseUnit(std::string_view text) {
    const std::string unit = upperCase(text);
    if (unit.empty() || unit == "IN" || unit == "INCH" || unit == "INCHES") {
        return Unit::Inch;
    }
    if (unit == "MM") {
        return Unit::Millimetre;
    }
    if (unit == "DOT" || unit == "DOTS") {
        return Unit::Dot;
    }
    return std::nullopt;
}

double halfOfLastDecimal(std::string_view number) {
    const auto point = number.find('.');
    const std::size_t decimals = point == std::string_view::npos ? 0 : number.size() - point - 1;
    return 0.5 * std::pow(10.0, -static_cast<double>(decimals));
}

double dotsPerUnit(Unit unit, int dpi) {
    constexpr double millimetresPerInch = 25.4;
    switch (unit) {
        case Unit::Inch:
            return dpi;
        case Unit::Millimetre:
            return dpi / millimetresPerInch;
        case Unit::Dot:
            break;
    }
    return 1;
}

}  // namespace

std::optional<Length> parseLength(std::string_view text) {
    Length length;
    const char* end = text.data() + text.size();
    const auto number = std::from_chars(text.data(), end, length.value, std::chars_format::fixed);
    if (number.ec != std::errc() || !std::isfinite(length.value)) {
        return std::nullopt;
    }
    const auto written = static_cast<std::size_t>(number.ptr - text.data());
    const auto unit = parseUnit(trimmed(text.substr(written)));
    if (!unit) {
        return std::nullopt;
    }
    length.unit = *unit;
    // A whole number is an exact size; only decimals are rounded ones.
    const std::string_view digits = text.substr(0, written);
    const bool whole = digits.find('.') == std::string_view::npos || digits.ends_with('.');
    length.precision = whole || *unit == Unit::Dot ? 0 : halfOfLastDecimal(digits);
    return length;
}

double lengthInDots(const Length& length, int dpi) {
    return length.value * dotsPerUnit(length.unit, dpi);
}

double precisionInDots(const Length& length, int dpi) {
    return length.precision * dotsPerUnit(length.unit, dpi);
}

}  // namespace tspl
