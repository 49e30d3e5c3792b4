#include "sizes/size_spelling.h"

#include <array>

#include "sizes/ascii.h"
#include "sizes/dimensions.h"

namespace sizes {
namespace {

constexpr std::string_view sCustom = "Custom.";
constexpr std::string_view sTransverse = ".Transverse";
constexpr std::array<std::string_view, 2> sBorderless{".Borderless", ".FullBleed"};

// Names without a unit are in inches, as "4x6" in PPD files, unless that would be a poster: who
// writes "100x150" may mean anything.
constexpr double widestWithoutUnit = 20;

bool takeSuffix(std::string_view& name, std::string_view suffix) {
    if (!endsIgnoringCase(name, suffix)) {
        return false;
    }
    name.remove_suffix(suffix.size());
    return true;
}

bool takeBorderless(std::string_view& name) {
    return takeSuffix(name, sBorderless[0]) || takeSuffix(name, sBorderless[1]);
}

std::optional<NominalSize> withUnit(const Dimensions& found, std::string_view unitless) {
    return sizeOf(found, found.unit.empty() ? unitless : found.unit);
}

// "73x41mm" and "288x432", behind "Custom.".
std::optional<NominalSize> customSize(std::string_view text) {
    const auto found = parseDimensions(text);
    return found ? withUnit(*found, "pt") : std::nullopt;
}

// "iso_a6_105x148mm", "custom_73x41mm", "na_letter_8.5x11in_something".
std::optional<NominalSize> selfDescribingSize(std::string_view name) {
    for (auto at = name.rfind('_'); at != std::string_view::npos && at > 0;
         at = name.rfind('_', at - 1)) {
        const std::string_view part = name.substr(at + 1, name.find('_', at + 1) - at - 1);
        const auto found = parseDimensions(part);
        if (found && (found->unit == "mm" || found->unit == "in")) {
            return sizeOf(*found, found->unit);
        }
    }
    return std::nullopt;
}

std::optional<NominalSize> ordinarySize(std::string_view name) {
    const auto found = parseDimensions(name);
    if (!found) {
        return parsePointsName(name);
    }
    if (found->unit.empty() &&
        (found->width > widestWithoutUnit || found->height > widestWithoutUnit)) {
        return std::nullopt;
    }
    return withUnit(*found, "in");
}

std::optional<NominalSize> uprightSize(std::string_view name) {
    if (startsIgnoringCase(name, sCustom)) {
        return customSize(name.substr(sCustom.size()));
    }
    if (name.find('_') != std::string_view::npos) {
        return selfDescribingSize(name);
    }
    return ordinarySize(name);
}

}  // namespace

BareName bareName(std::string_view name) {
    BareName bare{name};
    for (;;) {
        if (takeSuffix(bare.name, sTransverse)) {
            bare.transverse = !bare.transverse;
        } else if (takeBorderless(bare.name)) {
            bare.borderless = true;
        } else {
            return bare;
        }
    }
}

std::optional<NominalSize> parseSizeSpelling(std::string_view name) {
    const BareName bare = bareName(name);
    const auto size = uprightSize(bare.name);
    if (!size || !isLabelSize(*size)) {
        return std::nullopt;
    }
    return bare.transverse ? turned(*size) : size;
}

std::optional<NominalSize> parsePlainSize(std::string_view text) {
    const auto found = parseDimensions(text);
    if (!found || (found->unit != "mm" && found->unit != "in")) {
        return std::nullopt;
    }
    return sizeOf(*found, found->unit);
}

}  // namespace sizes
