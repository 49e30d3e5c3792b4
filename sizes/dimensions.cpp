#include "sizes/dimensions.h"

#include <array>
#include <charconv>

#include "sizes/ascii.h"

namespace sizes {
namespace {

struct UnitRule {
    std::string_view name;
    NominalSize (*size)(double width, double height);
};

constexpr double millimetresPerCentimetre = 10;
constexpr double millimetresPerMetre = 1000;
constexpr double inchesPerFoot = 12;

constexpr std::array sUnits{
    UnitRule{"mm", inMillimetres},
    UnitRule{"in", inInches},
    UnitRule{"pt", inPoints},
    UnitRule{"cm",
             [](double width, double height) {
                 return inMillimetres(width * millimetresPerCentimetre,
                                      height * millimetresPerCentimetre);
             }},
    UnitRule{"m",
             [](double width, double height) {
                 return inMillimetres(width * millimetresPerMetre, height * millimetresPerMetre);
             }},
    UnitRule{"ft",
             [](double width, double height) {
                 return inInches(width * inchesPerFoot, height * inchesPerFoot);
             }},
};

// Takes figures from the front of a text.
std::string_view takeFigures(std::string_view& text) {
    std::size_t count = 0;
    while (count < text.size() && isFigure(text[count])) {
        ++count;
    }
    const std::string_view figures = text.substr(0, count);
    text.remove_prefix(count);
    return figures;
}

bool take(std::string_view& text, char wanted) {
    if (!text.starts_with(wanted)) {
        return false;
    }
    text.remove_prefix(1);
    return true;
}

// Takes a plain decimal, "2" or "2.25", from the front of a text.
std::optional<double> takeDecimal(std::string_view& text) {
    const char* start = text.data();
    if (takeFigures(text).empty() || (take(text, '.') && takeFigures(text).empty())) {
        return std::nullopt;
    }
    double value = 0;
    const auto read = std::from_chars(start, text.data(), value, std::chars_format::fixed);
    return read.ec == std::errc() ? std::optional(value) : std::nullopt;
}

}  // namespace

std::optional<Dimensions> parseDimensions(std::string_view text) {
    const auto width = takeDecimal(text);
    if (!width || !take(text, 'x')) {
        return std::nullopt;
    }
    const auto height = takeDecimal(text);
    return height ? std::optional(Dimensions{*width, *height, text}) : std::nullopt;
}

std::optional<NominalSize> sizeOf(const Dimensions& dimensions, std::string_view unit) {
    for (const UnitRule& rule : sUnits) {
        if (equalsIgnoringCase(rule.name, unit)) {
            return rule.size(dimensions.width, dimensions.height);
        }
    }
    return std::nullopt;
}

std::optional<NominalSize> parsePointsName(std::string_view name) {
    if (!take(name, 'w')) {
        return std::nullopt;
    }
    const auto width = takeDecimal(name);
    if (!width || !take(name, 'h')) {
        return std::nullopt;
    }
    const auto height = takeDecimal(name);
    return height && name.empty() ? std::optional(inPoints(*width, *height)) : std::nullopt;
}

}  // namespace sizes
