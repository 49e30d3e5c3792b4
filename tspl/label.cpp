#include "tspl/label.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace tspl {
namespace {

constexpr int highestDpi = 600;
constexpr int usualDpi = 203;
constexpr std::int64_t dotsPerByte = 8;
// A label of unknown width: more dots than any print head has.
constexpr std::int64_t unknownWidth = 16384;

// However they are written. How many dots a millimetre has is not known yet.
bool isSame(const Length& a, const Length& b) {
    if (a.unit == Unit::Dot || b.unit == Unit::Dot) {
        return a.unit == b.unit && a.value == b.value;
    }
    constexpr double rounding = 1e-9;
    return std::abs(lengthInDots(a, highestDpi) - lengthInDots(b, highestDpi)) <= rounding;
}

bool areSame(const std::optional<Length>& a, const std::optional<Length>& b) {
    return a && b ? isSame(*a, *b) : a.has_value() == b.has_value();
}

// The most dots that the length can be meant to have, and one for the edge. What is called 203 dpi
// is 8 dots to the millimetre, a thousandth more.
double mostDotsOf(const Length& length, int dpi) {
    const double metric = length.unit == Unit::Millimetre ? 1.001 : 1;
    return std::ceil(metric * lengthInDots(length, dpi) + precisionInDots(length, dpi)) + 1;
}

// The fewest dots that the length can be meant to have, without the last ones.
std::int64_t fewestDotsOf(const Length& length, int dpi) {
    const double dots = lengthInDots(length, dpi) - precisionInDots(length, dpi) - 1;
    return static_cast<std::int64_t>(std::floor(std::clamp(dots, 0.0, 1e15)));
}

bool reachesOver(const Extent& extent, std::int64_t width, std::int64_t height) {
    return extent.left < 0 || extent.top < 0 || extent.right > width || extent.bottom > height;
}

// A page that is no whole number of bytes wide has a bitmap that ends some dots past the edge.
// Where the decimals of the width are coarser than a dot, no column of the page is cut off.
std::int64_t wholeColumns(const Length& length, int dpi, std::int64_t end) {
    const std::int64_t columns = wholeDots(length, dpi, end);
    const auto most = static_cast<std::int64_t>(
        std::floor(lengthInDots(length, dpi) + precisionInDots(length, dpi)));
    const bool endsInItsLastByte = end > columns && end < most + dotsPerByte;
    return endsInItsLastByte ? std::clamp(most, columns, end) : columns;
}

DotCanvas canvasOfUnknownSize(std::uint64_t mostDots) {
    return {unknownWidth, static_cast<std::int64_t>(mostDots / unknownWidth)};
}

}  // namespace

Label::Label(std::optional<int> dpi, std::uint64_t mostDots)
    : givenDpi_(dpi), mostDots_(mostDots), canvas_(canvasOfUnknownSize(mostDots)) {}

bool Label::setSize(const LabelSize& size) {
    if (size_ && isSame(size_->width, size.width) && areSame(size_->height, size.height)) {
        return !refused_;
    }
    size_ = size;
    refused_ = isTooLarge(size);
    canvas_ = DotCanvas(0, 0);
    if (!refused_) {
        const double width = mostDotsOf(size.width, canvasDpi());
        canvas_ = DotCanvas(static_cast<std::int64_t>(width),
                            static_cast<std::int64_t>(mostRowsOf(size, width)));
    }
    clear();
    return !refused_;
}

bool Label::isTooLarge(const LabelSize& size) const {
    const double width = mostDotsOf(size.width, canvasDpi());
    return width * mostRowsOf(size, width) > static_cast<double>(mostDots_) ||
           width > static_cast<double>(mostDots_);
}

int Label::canvasDpi() const {
    return givenDpi_.value_or(highestDpi);
}

// A label whose height is not given may have as many rows as there is memory for.
double Label::mostRowsOf(const LabelSize& size, double width) const {
    return size.height ? mostDotsOf(*size.height, canvasDpi())
                       : std::floor(static_cast<double>(mostDots_) / width);
}

void Label::clear() {
    canvas_.clear();
    widest_ = {};
    highest_ = {};
    drawn_.clear();
    farthest_ = {};
    lacksMarks_ = false;
}

// Which resolution the label has may be known only at its end: at the lowest one it is smallest.
bool Label::mayReachOver(const Extent& extent) const {
    const int dpi = givenDpi_.value_or(usualDpi);
    const std::int64_t width = size_ ? fewestDotsOf(size_->width, dpi) : canvas_.width();
    const std::int64_t height =
        size_ && size_->height ? fewestDotsOf(*size_->height, dpi) : canvas_.height();
    return reachesOver(extent, width, height);
}

void Label::noteDrawn(const Place& place, std::string_view name) {
    const Extent extent = canvas_.takeExtent();
    if (extent.right <= extent.left || !mayReachOver(extent)) {
        return;
    }
    const Extent before = farthest_;
    farthest_.add(extent);
    constexpr std::size_t most = 1000;
    const bool reachesFarther = farthest_ != before && drawn_.size() < 2 * most;
    if (drawn_.size() < most || reachesFarther) {
        drawn_.push_back({place, std::string(name), extent});
    }
}

void Label::noteErased(const Area& area) {
    std::erase_if(drawn_, [&area](const Drawn& drawn) {
        const Extent& extent = drawn.extent;
        return extent.left >= area.x && extent.top >= area.y &&
               extent.right <= area.x + area.width && extent.bottom <= area.y + area.height;
    });
}

void Label::noteTold(const LabelDots& dots) {
    for (Drawn& drawn : drawn_) {
        drawn.isTold = drawn.isTold || reachesOver(drawn.extent, dots.width, dots.height);
    }
}

std::vector<Label::Drawn> Label::overhanging(const LabelDots& dots) const {
    std::vector<Drawn> found;
    std::copy_if(
        drawn_.begin(), drawn_.end(), std::back_inserter(found),
        [&dots](const Drawn& drawn) { return reachesOver(drawn.extent, dots.width, dots.height); });
    return found;
}

void Label::noteBitmap(const BitmapHead& head, std::int64_t x, std::int64_t y) {
    if (head.pictureBytes() == 0) {
        return;
    }
    const std::int64_t right = x + head.rowBytes * dotsPerByte;
    const std::int64_t bottom = y + head.rows;
    if (right > widest_.end) {
        widest_ = {head, right};
    }
    if (bottom > highest_.end) {
        highest_ = {head, bottom};
    }
}

LabelDots Label::dots() {
    if (refused_) {
        return {};
    }
    const auto [dpi, source] = knownResolution();
    const Area burnt = size_ && size_->height ? Area{} : canvas_.burntArea();
    return {size_ ? wholeColumns(size_->width, dpi, widest_.end)
                  : std::clamp(widest_.end, burnt.x + burnt.width, canvas_.width()),
            size_ && size_->height
                ? wholeDots(*size_->height, dpi, highest_.end)
                : std::clamp(highest_.end, burnt.y + burnt.height, canvas_.height()),
            dpi, source};
}

Label::Resolution Label::knownResolution() {
    if (givenDpi_) {
        return {*givenDpi_, DpiSource::Given};
    }
    if (size_ && widest_.end > 0) {
        if (const auto dpi = nearestDpi(size_->width, widest_.end)) {
            lastDpi_ = dpi;
            return {*dpi, DpiSource::Bitmaps};
        }
    }
    return lastDpi_ ? Resolution{*lastDpi_, DpiSource::LabelBefore}
                    : Resolution{usualDpi, DpiSource::Usual};
}

std::optional<Label::Overhang> Label::widestOverhang(const LabelDots& dots) const {
    const std::int64_t bytes = (dots.width + dotsPerByte - 1) / dotsPerByte;
    return widest_.end > bytes * dotsPerByte ? std::optional(widest_) : std::nullopt;
}

std::optional<Label::Overhang> Label::highestOverhang(const LabelDots& dots) const {
    return highest_.end > dots.height ? std::optional(highest_) : std::nullopt;
}

}  // namespace tspl
