#include "intake/sheet/frames.h"

#include <algorithm>

namespace intake::sheet {
namespace {

// A line and the side of a frame that it may be, along it.
bool reachesBothEnds(int start, int end, int sideStart, int sideEnd, int widestGap) {
    return start - sideStart <= widestGap && sideEnd - end <= widestGap;
}

bool runsAlong(int start, int end, int sideStart, int sideEnd) {
    const int shared = std::min(end, sideEnd) - std::max(start, sideStart);
    return 100 * shared >= 85 * (sideEnd - sideStart);
}

class FrameSearch {
public:
    FrameSearch(const FrameLines& lines, int widestGap, const IsWanted& isWanted)
        : lines_(lines), widestGap_(widestGap), isWanted_(isWanted) {}

    std::vector<Frame> search() {
        for (const DotRectangle& top : lines_.across) {
            for (const DotRectangle& bottom : lines_.across) {
                if (top.top < bottom.top) {
                    searchBetween(top, bottom);
                }
            }
        }
        return std::move(frames_);
    }

private:
    void searchBetween(const DotRectangle& top, const DotRectangle& bottom) {
        sides_.clear();
        std::ranges::copy_if(lines_.down, std::back_inserter(sides_), [&](const auto& side) {
            return runsAlong(side.top, side.bottom, top.top, bottom.bottom);
        });
        for (const DotRectangle& left : sides_) {
            for (const DotRectangle& right : sides_) {
                add(top, bottom, left, right);
            }
        }
    }

    void add(const DotRectangle& top, const DotRectangle& bottom, const DotRectangle& left,
             const DotRectangle& right) {
        const DotRectangle frame{left.left, top.top, right.right, bottom.bottom};
        if (left.left < right.left && runsAlong(top.left, top.right, frame.left, frame.right) &&
            runsAlong(bottom.left, bottom.right, frame.left, frame.right) && isWanted_(frame)) {
            frames_.push_back({frame, isClosed(frame, top, bottom, left, right)});
        }
    }

    bool isClosed(const DotRectangle& frame, const DotRectangle& top, const DotRectangle& bottom,
                  const DotRectangle& left, const DotRectangle& right) const {
        const auto isWhole = [&](const DotRectangle& line, bool isAcross) {
            return isAcross
                       ? reachesBothEnds(line.left, line.right, frame.left, frame.right, widestGap_)
                       : reachesBothEnds(line.top, line.bottom, frame.top, frame.bottom,
                                         widestGap_);
        };
        return isWhole(top, true) && isWhole(bottom, true) && isWhole(left, false) &&
               isWhole(right, false);
    }

    const FrameLines& lines_;
    int widestGap_;
    const IsWanted& isWanted_;
    std::vector<DotRectangle> sides_;
    std::vector<Frame> frames_;
};

}  // namespace

std::vector<Frame> findFrames(const FrameLines& lines, int widestGap, const IsWanted& isWanted) {
    return FrameSearch(lines, widestGap, isWanted).search();
}

}  // namespace intake::sheet
