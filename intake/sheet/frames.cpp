#include "intake/sheet/frames.h"

#include <algorithm>

namespace intake::sheet {
namespace {

bool runsAlong(int start, int end, int sideStart, int sideEnd) {
    const int shared = std::min(end, sideEnd) - std::max(start, sideStart);
    return 100 * shared >= 85 * (sideEnd - sideStart);
}

class FrameSearch {
public:
    FrameSearch(const FrameLines& lines, const IsWanted& isWanted)
        : lines_(lines), isWanted_(isWanted) {}

    std::vector<DotRectangle> search() {
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
            frames_.push_back(frame);
        }
    }

    const FrameLines& lines_;
    const IsWanted& isWanted_;
    std::vector<DotRectangle> sides_;
    std::vector<DotRectangle> frames_;
};

}  // namespace

std::vector<DotRectangle> findFrames(const FrameLines& lines, const IsWanted& isWanted) {
    return FrameSearch(lines, isWanted).search();
}

}  // namespace intake::sheet
