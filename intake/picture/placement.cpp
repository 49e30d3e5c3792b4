#include "intake/picture/placement.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace intake::picture {
namespace {

// What may be cut off or left white for the sake of whole dots, as a share of the label.
constexpr double sSlack = 0.01;
// Resolutions are rounded in files: PNG has dots per metre.
constexpr double sResolutionSlack = 0.0005;
constexpr double sMostWhole = 8;
// Beyond that it is a mistake of units.
constexpr double sMostAspect = 8;

// Dots per sample.
struct Scale {
    double across;
    double down;
};

// 3, 2, 1, 1/2, 1/3 ... where the scale is almost that.
double wholeScale(double scale, double slack) {
    const bool isUpward = scale >= 1;
    const double whole = std::round(isUpward ? scale : 1 / scale);
    if (whole > sMostWhole) {
        return scale;
    }
    const double exact = isUpward ? whole : 1 / whole;
    return std::abs(scale / exact - 1) <= slack ? exact : scale;
}

double aspectOf(double across, double down) {
    const double aspect = across > 0 && down > 0 ? across / down : 1;
    return aspect > sMostAspect || aspect < 1 / sMostAspect ? 1 : aspect;
}

class Placing {
public:
    Placing(const PictureSize& picture, const PlacementWish& wish, const LabelDots& label)
        : picture_(picture), wish_(wish), label_(label), ppiAcross_(resolution()) {
        if (wish.ppiAcross > 0) {
            aspect_ = aspectOf(wish.ppiAcross, wish.ppiDown);
        } else if (wish.sizing != Sizing::Fit || !isTheLabel()) {
            aspect_ = aspectOf(picture.ppiAcross, picture.ppiDown);
        }
    }

    Placement place() {
        const Turn turn = wish_.turn ? *wish_.turn : (fitsBetterTurned() ? quarterLeft : upright);
        if (turn.isTransposed) {
            std::swap(label_.width, label_.height);
        }
        const Scale scale = scaleOf();
        const bool isOnOne = sizing() != Sizing::Share && sizing() != Sizing::Natural;
        return {axis(picture_.width, scale.across, label_.width, wish_.across, isOnOne),
                axis(picture_.height, scale.down, label_.height, wish_.down, isOnOne),
                wish_.isMirrored ? combined(turn, mirrored) : turn};
    }

private:
    // A picture that says nothing is as large as it is in the printer's dots.
    double resolution() const {
        if (wish_.ppiAcross > 0) {
            return wish_.ppiAcross;
        }
        return picture_.ppiAcross > 0 ? picture_.ppiAcross : label_.dpi;
    }

    // Somebody has drawn the label dot by dot, whatever resolution the program has written.
    bool isTheLabel() const {
        const auto size = std::minmax(picture_.width, picture_.height);
        return size == std::minmax(label_.width, label_.height);
    }

    // With square samples.
    double seenWidth() const { return picture_.width; }
    double seenHeight() const { return picture_.height * aspect_; }

    double naturalScale() const {
        const double percent = wish_.sizing == Sizing::Natural ? wish_.percent : 100;
        return wholeScale(label_.dpi / ppiAcross_ * percent / 100, sResolutionSlack);
    }

    double fittingScale() const {
        return std::min(label_.width / seenWidth(), label_.height / seenHeight());
    }

    double fillingScale() const {
        return std::max(label_.width / seenWidth(), label_.height / seenHeight());
    }

    bool isLarger() const {
        const double most = 1 + sSlack;
        return wish_.isFaithful || seenWidth() * naturalScale() > label_.width * most ||
               seenHeight() * naturalScale() > label_.height * most;
    }

    Sizing sizing() const {
        switch (wish_.sizing) {
            case Sizing::Auto:
                return isLarger() ? Sizing::Fill : Sizing::Cropped;
            case Sizing::AutoFit:
                return isLarger() ? Sizing::Fit : Sizing::Cropped;
            default:
                return wish_.sizing;
        }
    }

    bool fitsBetterTurned() const {
        if (label_.isSquare() || seenWidth() == seenHeight()) {
            return false;
        }
        if (wish_.sizing == Sizing::Natural) {
            return !fits(seenWidth(), seenHeight()) && fits(seenHeight(), seenWidth());
        }
        return (seenWidth() > seenHeight()) != (label_.width > label_.height);
    }

    bool fits(double width, double height) const {
        const double most = (1 + sSlack) / naturalScale();
        return width <= label_.width * most && height <= label_.height * most;
    }

    double seenScale() const {
        switch (sizing()) {
            case Sizing::Fill: {
                const double whole = wholeScale(fillingScale(), sSlack);
                return std::max(whole, fillingScale());
            }
            case Sizing::Cropped:
            case Sizing::Natural:
                return naturalScale();
            case Sizing::Share:
                return wholeScale(fittingScale() * wish_.percent / 100, sResolutionSlack);
            default:
                return wholeScale(fittingScale(), aspect_ == 1 ? sSlack : 0);
        }
    }

    Scale scaleOf() const {
        const double scale = seenScale();
        return {scale, scale * aspect_};
    }

    static PlacedAxis axis(unsigned samples, double scale, unsigned room, int side, bool isOnOne) {
        PlacedAxis axis{samples, 1, 1, room, side};
        const double part = std::round(1 / scale);
        if (scale < 1 && part <= sMostWhole && scale == 1 / part && samples >= part) {
            // Whole dots of whole samples; the rest at the end would make them uneven.
            axis.scaled = samples / static_cast<unsigned>(part);
            axis.source = axis.scaled * static_cast<unsigned>(part);
        } else {
            constexpr double most = 1U << 30U;
            axis.scaled = static_cast<unsigned>(std::clamp(std::round(samples * scale), 1.0, most));
        }
        if (!isOnOne) {
            const double labels = std::ceil(static_cast<double>(axis.scaled) / room - sSlack);
            axis.labels = static_cast<unsigned>(std::max(1.0, labels));
        }
        return axis;
    }

    PictureSize picture_;
    PlacementWish wish_;
    LabelDots label_;
    double ppiAcross_;
    double aspect_ = 1;
};

unsigned beginOf(const PlacedAxis& axis, unsigned label) {
    return static_cast<unsigned>(std::uint64_t{axis.scaled} * label / axis.labels);
}

// What lies before the part that is seen, or before the picture: none, a half or all of it.
unsigned before(unsigned rest, int side) {
    return side < 0 ? 0 : (side > 0 ? rest : rest / 2);
}

}  // namespace

bool LabelDots::isSquare() const {
    constexpr unsigned byte = 8;
    return std::max(width, height) - std::min(width, height) < byte;
}

Placement placePicture(const PictureSize& picture, const PlacementWish& wish,
                       const LabelDots& label) {
    return Placing(picture, wish, label).place();
}

AxisPart partOn(const PlacedAxis& axis, unsigned label) {
    const unsigned begin = beginOf(axis, label);
    const unsigned size = beginOf(axis, label + 1) - begin;
    if (size > axis.room) {
        return {begin + before(size - axis.room, axis.side), axis.room, 0};
    }
    return {begin, size, before(axis.room - size, axis.side)};
}

}  // namespace intake::picture
