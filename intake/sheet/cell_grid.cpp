#include "intake/sheet/cell_grid.h"

#include <algorithm>
#include <array>
#include <utility>

namespace intake::sheet {
namespace {

constexpr std::array sNeighbours{std::pair{-1, -1}, std::pair{0, -1}, std::pair{1, -1},
                                 std::pair{-1, 0},  std::pair{1, 0},  std::pair{-1, 1},
                                 std::pair{0, 1},   std::pair{1, 1}};

int cellsOf(int dots, int dotsOfCell) {
    return (dots + dotsOfCell - 1) / dotsOfCell;
}

void include(DotRectangle& extent, int x, int y) {
    if (extent.isEmpty()) {
        extent = {x, y, x + 1, y + 1};
        return;
    }
    extent = {std::min(extent.left, x), std::min(extent.top, y), std::max(extent.right, x + 1),
              std::max(extent.bottom, y + 1)};
}

// Walks over one group after another.
class Grouping {
public:
    Grouping(const CellGrid& grid, int farthest)
        : grid_(grid),
          farthest_(farthest),
          isSeen_(static_cast<std::size_t>(grid.width()) *
                  static_cast<std::size_t>(grid.height())) {}

    std::vector<DotRectangle> groups() {
        std::vector<DotRectangle> found;
        for (int y = 0; y < grid_.height(); ++y) {
            for (int x = 0; x < grid_.width(); ++x) {
                if (take(x, y)) {
                    found.push_back(groupFrom());
                }
            }
        }
        return found;
    }

private:
    bool take(int x, int y) {
        const bool isInside = x >= 0 && y >= 0 && x < grid_.width() && y < grid_.height();
        if (!isInside || grid_.distance(x, y) > farthest_) {
            return false;
        }
        const auto index = static_cast<std::size_t>(y) * static_cast<std::size_t>(grid_.width()) +
                           static_cast<std::size_t>(x);
        if (isSeen_[index]) {
            return false;
        }
        isSeen_[index] = true;
        next_.emplace_back(x, y);
        return true;
    }

    DotRectangle groupFrom() {
        DotRectangle extent;
        while (!next_.empty()) {
            const auto [x, y] = next_.back();
            next_.pop_back();
            if (grid_.distance(x, y) == 0) {
                include(extent, x, y);
            }
            for (const auto& [right, down] : sNeighbours) {
                take(x + right, y + down);
            }
        }
        return extent;
    }

    const CellGrid& grid_;
    int farthest_;
    std::vector<bool> isSeen_;
    std::vector<std::pair<int, int>> next_;
};

}  // namespace

CellGrid::CellGrid(const InkMap& ink, int dotsOfCell)
    : width_(cellsOf(ink.width(), dotsOfCell)), height_(cellsOf(ink.height(), dotsOfCell)) {
    const int farAway = width_ + height_;
    for (int y = 0; y < height_; ++y) {
        for (int x = 0; x < width_; ++x) {
            const int left = x * dotsOfCell;
            const int top = y * dotsOfCell;
            const bool hasInk = ink.count({left, top, left + dotsOfCell, top + dotsOfCell}) > 0;
            distances_.push_back(hasInk ? 0 : farAway);
        }
    }
    spread();
}

void CellGrid::clear(const std::vector<DotRectangle>& cells) {
    const int farAway = width_ + height_;
    for (int& distance : distances_) {
        distance = distance == 0 ? 0 : farAway;
    }
    for (const DotRectangle& part : cells) {
        for (int y = part.top; y < part.bottom; ++y) {
            const auto row = distances_.begin() + static_cast<std::ptrdiff_t>(indexOf(0, y));
            std::fill(row + part.left, row + part.right, farAway);
        }
    }
    spread();
}

void CellGrid::spread() {
    spreadForwards();
    spreadBackwards();
}

void CellGrid::reach(int x, int y, int fromX, int fromY) {
    if (fromX >= 0 && fromY >= 0 && fromX < width_ && fromY < height_) {
        int& distance = distances_[indexOf(x, y)];
        distance = std::min(distance, distances_[indexOf(fromX, fromY)] + 1);
    }
}

void CellGrid::spreadForwards() {
    for (int y = 0; y < height_; ++y) {
        for (int x = 0; x < width_; ++x) {
            reach(x, y, x - 1, y - 1);
            reach(x, y, x, y - 1);
            reach(x, y, x + 1, y - 1);
            reach(x, y, x - 1, y);
        }
    }
}

void CellGrid::spreadBackwards() {
    for (int y = height_ - 1; y >= 0; --y) {
        for (int x = width_ - 1; x >= 0; --x) {
            reach(x, y, x + 1, y + 1);
            reach(x, y, x, y + 1);
            reach(x, y, x - 1, y + 1);
            reach(x, y, x + 1, y);
        }
    }
}

std::vector<DotRectangle> CellGrid::groups(int farthest) const {
    return Grouping(*this, farthest).groups();
}

}  // namespace intake::sheet
