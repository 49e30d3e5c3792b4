#include "intake/sheet/cell_grid.h"

#include <algorithm>
#include <cstddef>

namespace intake::sheet {
namespace {

int cellsOf(int dots, int dotsOfCell) {
    return (dots + dotsOfCell - 1) / dotsOfCell;
}

DotRectangle around(const DotRectangle& a, const DotRectangle& b) {
    if (a.isEmpty() || b.isEmpty()) {
        return a.isEmpty() ? b : a;
    }
    return {std::min(a.left, b.left), std::min(a.top, b.top), std::max(a.right, b.right),
            std::max(a.bottom, b.bottom)};
}

// Joins the runs of each row with those of the row above that they touch.
class Grouping {
public:
    Grouping(const CellGrid& grid, int farthest) : grid_(grid), farthest_(farthest) {}

    std::vector<DotRectangle> groups() {
        for (int y = 0; y < grid_.height(); ++y) {
            above_.swap(row_);
            addRow(y);
        }
        std::vector<DotRectangle> found;
        for (std::size_t group = 0; group < groups_.size(); ++group) {
            if (groups_[group].master == group) {
                found.push_back(groups_[group].extent);
            }
        }
        return found;
    }

private:
    struct Run {
        int start;
        int end;
        std::size_t group;
    };
    struct Group {
        std::size_t master;
        DotRectangle extent;
    };

    void addRow(int y) {
        row_.clear();
        std::size_t next = 0;
        for (int x = 0; x < grid_.width(); ++x) {
            if (grid_.distance(x, y) <= farthest_) {
                const Run run = runFrom(x, y);
                x = run.end;
                join(run, next);
                row_.push_back(run);
            }
        }
    }

    Run runFrom(int start, int y) {
        DotRectangle extent;
        int x = start;
        for (; x < grid_.width() && grid_.distance(x, y) <= farthest_; ++x) {
            if (grid_.distance(x, y) == 0) {
                extent = {extent.isEmpty() ? x : extent.left, y, x + 1, y + 1};
            }
        }
        groups_.push_back({groups_.size(), extent});
        return {start, x, groups_.size() - 1};
    }

    // With those above, from the next one on that may still be touched; corners touch as well.
    void join(const Run& run, std::size_t& next) {
        while (next < above_.size() && above_[next].end < run.start) {
            ++next;
        }
        for (std::size_t i = next; i < above_.size() && above_[i].start <= run.end; ++i) {
            unite(above_[i].group, run.group);
        }
    }

    void unite(std::size_t a, std::size_t b) {
        const auto [first, second] = std::minmax({masterOf(a), masterOf(b)});
        groups_[first].extent = around(groups_[first].extent, groups_[second].extent);
        groups_[second].master = first;
    }

    std::size_t masterOf(std::size_t group) {
        while (groups_[group].master != group) {
            groups_[group].master = groups_[groups_[group].master].master;
            group = groups_[group].master;
        }
        return group;
    }

    const CellGrid& grid_;
    int farthest_;
    std::vector<Run> above_;
    std::vector<Run> row_;
    std::vector<Group> groups_;
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
    if (cells.empty()) {
        return;
    }
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
