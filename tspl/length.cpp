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

// A whole number is an exact size, and so is one of inches with a decimal, such as 2.5; more
// decimals are rounded.
bool isExact(std::string_view number, Unit unit) {
    const auto point = number.find('.');
    const std::size_t decimals = point == std::string_view::npos ? 0 : number.size() - point - 1;
    return decimals == 0 || unit == Unit::Dot || (unit == Unit::Inch && decimals == 1);
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
    length.precision =
        isExact(text.substr(0, written), *unit) ? 0 : halfOfLastDecimal(text.substr(0, written));
    return length;
}

double lengthInDots(const Length& length, int dpi) {
    return length.value * dotsPerUnit(length.unit, dpi);
}

double precisionInDots(const Length& length, int dpi) {
    return length.precision * dotsPerUnit(length.unit, dpi);
}

}  // namespace tspl
