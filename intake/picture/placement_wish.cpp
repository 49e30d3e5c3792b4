#include "intake/picture/placement_wish.h"

#include <array>
#include <cmath>
#include <cstdlib>
#include <string>
#include <string_view>

#include "sizes/ascii.h"

namespace intake::picture {
namespace {

struct SizingName {
    std::string_view name;
    Sizing sizing;
};
constexpr std::array sSizings{
    SizingName{"auto", Sizing::Auto},    SizingName{"auto-fit", Sizing::AutoFit},
    SizingName{"fill", Sizing::Fill},    SizingName{"fit", Sizing::Fit},
    SizingName{"none", Sizing::Cropped},
};

struct PositionName {
    std::string_view name;
    int across;
    int down;
};
constexpr std::array sPositions{
    PositionName{"top-left", -1, -1}, PositionName{"top", 0, -1},
    PositionName{"top-right", 1, -1}, PositionName{"left", -1, 0},
    PositionName{"right", 1, 0},      PositionName{"bottom-left", -1, 1},
    PositionName{"bottom", 0, 1},     PositionName{"bottom-right", 1, 1},
};

bool isTrue(const OptionList& options, std::string_view name) {
    const std::string* value = options.find(name);
    return value != nullptr && isYes(*value);
}

double numberOf(const char*& text) {
    char* end = nullptr;
    const double number = std::strtod(text, &end);
    text = end;
    return std::isfinite(number) && number > 0 ? number : 0;
}

// 0 when there is none.
double number(const OptionList& options, std::string_view name) {
    const std::string* value = options.find(name);
    const char* text = value == nullptr ? "" : value->c_str();
    return numberOf(text);
}

// "203" or "203x98"
void readResolution(const OptionList& options, PlacementWish& wish) {
    const std::string* value = options.find("ppi");
    if (value == nullptr) {
        return;
    }
    const char* text = value->c_str();
    wish.ppiAcross = numberOf(text);
    wish.ppiDown = wish.ppiAcross;
    if (*text == 'x' && wish.ppiAcross > 0) {
        ++text;
        const double down = numberOf(text);
        wish.ppiDown = down > 0 ? down : wish.ppiAcross;
    }
}

std::optional<Sizing> printScaling(const OptionList& options) {
    const std::string* value = options.find("print-scaling");
    if (value != nullptr) {
        for (const SizingName& known : sSizings) {
            if (sizes::equalsIgnoringCase(*value, known.name)) {
                return known.sizing;
            }
        }
    }
    return std::nullopt;
}

void setShare(PlacementWish& wish, Sizing sizing, double percent) {
    wish.sizing = sizing;
    wish.percent = percent;
}

// In the order in which imagetopdf heeds them.
void readOlderOptions(const OptionList& options, PlacementWish& wish) {
    const double natural = number(options, "natural-scaling");
    const bool isNatural = wish.ppiAcross > 0 || natural > 0;
    if (isTrue(options, "fill")) {
        wish.sizing = Sizing::Fill;
    } else if (isTrue(options, "crop-to-fit")) {
        wish.sizing = Sizing::Cropped;
    } else if (const double share = number(options, "scaling"); share > 0 && !isNatural) {
        setShare(wish, Sizing::Share, share);
    } else if (isTrue(options, "fit-to-page") || isTrue(options, "fitplot")) {
        wish.sizing = Sizing::Fit;
    } else if (isNatural || options.has("fit-to-page") || options.has("fitplot")) {
        setShare(wish, Sizing::Natural, natural > 0 ? natural : 100);
    }
}

std::optional<Turn> readTurn(const OptionList& options) {
    switch (static_cast<int>(number(options, "orientation-requested"))) {
        case 3:
            return upright;
        case 4:
            return quarterLeft;
        case 5:
            return quarterRight;
        case 6:
            return half;
        default:
            break;
    }
    if (options.has("landscape")) {
        return isTrue(options, "landscape") ? quarterLeft : upright;
    }
    return std::nullopt;
}

void readPosition(const OptionList& options, PlacementWish& wish) {
    const std::string* value = options.find("position");
    if (value == nullptr) {
        return;
    }
    for (const PositionName& known : sPositions) {
        if (sizes::equalsIgnoringCase(*value, known.name)) {
            wish.across = known.across;
            wish.down = known.down;
        }
    }
}

}  // namespace

PlacementWish placementWish(const OptionList& options) {
    PlacementWish wish;
    readResolution(options, wish);
    if (const auto sizing = printScaling(options)) {
        wish.sizing = *sizing;
    } else {
        readOlderOptions(options, wish);
    }
    readPosition(options, wish);
    wish.turn = readTurn(options);
    wish.isMirrored = isTrue(options, "mirror");
    wish.isFaithful = isTrue(options, "ipp-attribute-fidelity");
    return wish;
}

}  // namespace intake::picture
