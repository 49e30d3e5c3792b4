#pragma once

#include <cstddef>
#include <vector>

#include "intake/sheet/ink_map.h"

namespace intake::sheet {

/// A page in square cells, each with its distance from the next cell that has ink: 0 for one that
/// has, up, down, aside and across corners alike.
class CellGrid {
public:
    CellGrid(const InkMap& ink, int dotsOfCell);

    /// Takes the ink of some cells for white.
    void clear(const std::vector<DotRectangle>& cells);

    int width() const { return width_; }
    int height() const { return height_; }
    int distance(int x, int y) const { return distances_[indexOf(x, y)]; }

    /// The rectangles, in cells, of the ink of every group of cells that are connected by cells no
    /// further than this from ink: runs of rows joined with those above (Hoshen and Kopelman 1976).
    std::vector<DotRectangle> groups(int farthest) const;

private:
    std::size_t indexOf(int x, int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) +
               static_cast<std::size_t>(x);
    }
    void spread();
    void spreadForwards();
    void spreadBackwards();
    void reach(int x, int y, int fromX, int fromY);

    int width_;
    int height_;
    std::vector<int> distances_;
};

}  // namespace intake::sheet
