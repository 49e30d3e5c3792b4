#include "intake/picture/label_drawing.h"

#include <algorithm>
#include <utility>

#include "intake/picture/area_average.h"
#include "intake/picture/grey.h"

namespace intake::picture {
namespace {

ScaledAxis windowOf(const PlacedAxis& axis, const AxisPart& part, bool isFlipped) {
    const unsigned first = isFlipped ? axis.scaled - part.first - part.count : part.first;
    return {axis.source, axis.scaled, first, part.count};
}

// The decoder may have made it smaller.
unsigned decodedSource(unsigned source, unsigned whole, unsigned decoded) {
    if (source == whole) {
        return decoded;
    }
    const auto share = std::uint64_t{source} * decoded / whole;
    return static_cast<unsigned>(std::clamp<std::uint64_t>(share, 1, decoded));
}

class Drawing {
public:
    Drawing(DecodedPicture& picture, const PictureOutline& outline, const Placement& placement,
            unsigned label)
        : picture_(picture),
          placement_(placement),
          turn_(outline.turn),
          partAcross_(partOn(placement.across, label / placement.down.labels)),
          partDown_(partOn(placement.down, label % placement.down.labels)) {
        // From the label's directions back to those of the file.
        across_ = windowOf(placement.across, partAcross_, turn_.isFlippedAcross);
        down_ = windowOf(placement.down, partDown_, turn_.isFlippedDown);
        if (turn_.isTransposed) {
            std::swap(across_, down_);
        }
        across_.source = decodedSource(across_.source, outline.width, picture.width());
        down_.source = decodedSource(down_.source, outline.height, picture.height());
    }

    GreyImage draw() {
        GreyImage sheet = onSheet(turned(window(), turn_));
        return turned(std::move(sheet), placement_.turn);
    }

private:
    GreyImage window() {
        GreyImage window(across_.count, down_.count);
        unsigned row = 0;
        averageArea(
            across_, down_, picture_.channels(),
            [&](unsigned index) { return picture_.row(index); },
            [&](std::span<const std::uint16_t> dots) { writeRow(dots, window.row(row++)); });
        return window;
    }

    void writeRow(std::span<const std::uint16_t> dots, std::span<std::uint8_t> row) {
        if (ColourProfile* const profile = picture_.profile()) {
            luma_.resize(row.size());
            profile->makeLuma(dots, luma_);
            dots = luma_;
        }
        std::ranges::transform(dots, row.begin(), levelOf);
    }

    GreyImage onSheet(GreyImage window) const {
        GreyImage sheet(placement_.across.room, placement_.down.room);
        if (window.width == sheet.width && window.height == sheet.height) {
            return window;
        }
        for (unsigned row = 0; row < window.height; ++row) {
            std::ranges::copy(window.row(row),
                              sheet.row(partDown_.offset + row).begin() + partAcross_.offset);
        }
        return sheet;
    }

    DecodedPicture& picture_;
    const Placement& placement_;
    Turn turn_;
    AxisPart partAcross_;
    AxisPart partDown_;
    ScaledAxis across_;
    ScaledAxis down_;
    std::vector<std::uint16_t> luma_;
};

// Samples for each dot.
double density(const PlacedAxis& axis) {
    return static_cast<double>(axis.source) / axis.scaled;
}

bool isWhole(const PlacedAxis& axis) {
    return axis.source % axis.scaled == 0;
}

bool staysWhole(const PlacedAxis& axis, unsigned reduction) {
    return !isWhole(axis) || axis.source / axis.scaled % reduction == 0;
}

}  // namespace

GreyImage drawLabel(DecodedPicture& picture, const PictureOutline& outline,
                    const Placement& placement, unsigned label) {
    return Drawing(picture, outline, placement, label).draw();
}

unsigned reductionFor(const PictureOutline& outline, const Placement& placement) {
    const double least = std::min(density(placement.across), density(placement.down));
    const double samples = static_cast<double>(outline.width) * outline.height;
    constexpr double many = 4e6;
    unsigned best = 1;
    for (unsigned reduction = 2; reduction <= 8; reduction *= 2) {
        const bool isTooMany = samples / (best * best) > many;
        const double enough = isTooMany ? 1 : 1.5;
        if (least / reduction >= enough && staysWhole(placement.across, reduction) &&
            staysWhole(placement.down, reduction)) {
            best = reduction;
        }
    }
    return best;
}

}  // namespace intake::picture
