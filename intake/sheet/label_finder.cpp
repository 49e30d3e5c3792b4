#include "intake/sheet/label_finder.h"

#include <algorithm>
#include <cmath>

#include "intake/sheet/candidates.h"
#include "intake/sheet/frames.h"
#include "intake/sheet/ink_blocks.h"
#include "intake/sheet/reading_order.h"

namespace intake::sheet {
namespace {

using sizes::PointSize;

// A side of a label is at least three quarters of the label's.
constexpr double sShortestShare = 0.75;
// Round corners, and the ends of sides that are not dots in full.
constexpr double sShortestLineShare = 0.6;
constexpr double sWidestGap = 1.5;
constexpr double sMargin = 3;
constexpr double sMostTrimmed = 2;

class Finder {
public:
    Finder(const GreyPage& page, const PointSize& label)
        : ink_(page), scale_(page.dotsPerPoint), label_(label) {}

    std::vector<Rectangle> find() {
        addFrames();
        addBlocks();
        std::vector<DotRectangle> parts;
        for (const Candidate& label : chooseAmong(std::move(candidates_), wholePage().area())) {
            parts.push_back(withMargin(label));
        }
        sortAsRead(parts);
        std::vector<Rectangle> labels;
        std::ranges::transform(parts, std::back_inserter(labels), [this](const DotRectangle& part) {
            return trimmed(inPoints(part), fit(part).isAcross);
        });
        return labels;
    }

private:
    DotRectangle wholePage() const { return {0, 0, ink_.width(), ink_.height()}; }

    int dots(double points) const { return static_cast<int>(std::floor(points * scale_)); }

    int shortestSide() const {
        return dots(std::min(label_.width, label_.height) * sShortestShare);
    }

    PointSize pointsOf(const DotRectangle& part) const {
        return {part.width() / scale_, part.height() / scale_};
    }

    Rectangle inPoints(const DotRectangle& part) const {
        return {part.left / scale_, part.top / scale_, part.right / scale_, part.bottom / scale_};
    }

    LabelFit fit(const DotRectangle& part) const {
        return fitOf(pointsOf(part), label_, pointsOf(wholePage()));
    }

    void addFrames() {
        const int shortest = std::max(1, static_cast<int>(shortestSide() * sShortestLineShare));
        const FrameLines lines = findFrameLines(ink_, shortest, dots(sWidestGap));
        const auto isWanted = [this](const DotRectangle& frame) { return fit(frame).isLabel; };
        for (const Frame& frame : findFrames(lines, dots(sWidestGap), isWanted)) {
            const auto kind = frame.isClosed ? Candidate::Kind::Frame : Candidate::Kind::OpenFrame;
            candidates_.push_back({frame.extent, fit(frame.extent), kind});
        }
    }

    void addBlocks() {
        for (const InkBlock& block : findInkBlocks(ink_, scale_, shortestSide())) {
            const LabelFit blockFit = fit(block.extent);
            if (block.isLasting && blockFit.isLabel) {
                candidates_.push_back({block.extent, blockFit, Candidate::Kind::Block});
            }
        }
    }

    // How far each side of a part may move outwards before it is larger than the label.
    int room(int side, double labelSide) const {
        return std::clamp((dots(labelSide) - side) / 2, 0, dots(sMargin));
    }

    DotRectangle withMargin(const Candidate& candidate) const {
        const DotRectangle& part = candidate.extent;
        const bool isAcross = candidate.fit.isAcross;
        const int across = room(part.width(), isAcross ? label_.height : label_.width);
        const int down = room(part.height(), isAcross ? label_.width : label_.height);
        DotRectangle cut = part;
        while (part.left - cut.left < across && isWhiteAround(cut, 1, 0)) {
            cut = grown(cut, 1, 0);
        }
        while (part.top - cut.top < down && isWhiteAround(cut, 0, 1)) {
            cut = grown(cut, 0, 1);
        }
        return common(cut, wholePage());
    }

    static void trim(double& start, double& end, double labelSide) {
        const double over = end - start - labelSide;
        if (over > 0 && over <= sMostTrimmed) {
            start += over / 2;
            end -= over / 2;
        }
    }

    Rectangle trimmed(Rectangle part, bool isAcross) const {
        trim(part.left, part.right, isAcross ? label_.height : label_.width);
        trim(part.top, part.bottom, isAcross ? label_.width : label_.height);
        return part;
    }

    static DotRectangle grown(const DotRectangle& part, int across, int down) {
        return {part.left - across, part.top - down, part.right + across, part.bottom + down};
    }

    bool isWhiteAround(const DotRectangle& part, int across, int down) const {
        return ink_.count(grown(part, across, down)) == ink_.count(part);
    }

    InkMap ink_;
    double scale_;
    PointSize label_;
    std::vector<Candidate> candidates_;
};

}  // namespace

std::vector<Rectangle> findLabels(const GreyPage& page, const PointSize& label) {
    return Finder(page, label).find();
}

}  // namespace intake::sheet
