#include "intake/sheet/ink_blocks.h"

#include <algorithm>
#include <cmath>

#include "intake/sheet/cell_grid.h"

namespace intake::sheet {
namespace {

constexpr double sCellPoints = 2;
// Cells that are this far from ink connect what is four points for each of them apart.
constexpr int sFarthest = 12;

bool isOutlineWhite(const InkMap& ink, const DotRectangle& extent) {
    const DotRectangle around{extent.left - 1, extent.top - 1, extent.right + 1, extent.bottom + 1};
    return ink.count(around) == ink.count(extent);
}

DotRectangle dotsOf(const DotRectangle& cells, int dotsOfCell) {
    return {cells.left * dotsOfCell, cells.top * dotsOfCell, cells.right * dotsOfCell,
            cells.bottom * dotsOfCell};
}

// Lines as they are drawn at the corners of what is to be cut out, in points.
struct MarkBounds {
    double thickest = 3;
    double shortest = 5;
    double longest = 40;
    double apart = 4;
};

bool isMark(const InkMap& ink, const DotRectangle& extent, double dotsPerPoint) {
    const MarkBounds bounds;
    const double thickness = std::min(extent.width(), extent.height()) / dotsPerPoint;
    const double length = std::max(extent.width(), extent.height()) / dotsPerPoint;
    const int apart = static_cast<int>(bounds.apart * dotsPerPoint);
    const DotRectangle around{extent.left - apart, extent.top - apart, extent.right + apart,
                              extent.bottom + apart};
    return thickness <= bounds.thickest && length >= bounds.shortest && length <= bounds.longest &&
           ink.count(around) == ink.count(extent);
}

std::vector<DotRectangle> marks(const CellGrid& grid, const InkMap& ink, int dotsOfCell,
                                double dotsPerPoint) {
    std::vector<DotRectangle> found = grid.groups(0);
    std::erase_if(found, [&](const DotRectangle& cells) {
        return !isMark(ink, ink.extent(dotsOf(cells, dotsOfCell)), dotsPerPoint);
    });
    return found;
}

class Collection {
public:
    void add(const DotRectangle& extent, int farthest) {
        const auto known = std::ranges::find(blocks_, extent, &InkBlock::extent);
        if (known != blocks_.end()) {
            known->isLasting = true;
        } else {
            blocks_.push_back({extent, farthest == sFarthest});
        }
    }

    std::vector<InkBlock> take() { return std::move(blocks_); }

private:
    std::vector<InkBlock> blocks_;
};

}  // namespace

std::vector<InkBlock> findInkBlocks(const InkMap& ink, double dotsPerPoint, int shortestSide) {
    const int dotsOfCell = std::max(1, static_cast<int>(std::lround(sCellPoints * dotsPerPoint)));
    CellGrid grid(ink, dotsOfCell);
    grid.clear(marks(grid, ink, dotsOfCell, dotsPerPoint));
    Collection blocks;
    for (int farthest = 0; farthest <= sFarthest; ++farthest) {
        for (const DotRectangle& cells : grid.groups(farthest)) {
            const DotRectangle extent = ink.extent(dotsOf(cells, dotsOfCell));
            const bool isLarge = std::min(extent.width(), extent.height()) >= shortestSide;
            if (isLarge && isOutlineWhite(ink, extent)) {
                blocks.add(extent, farthest);
            }
        }
    }
    return blocks.take();
}

}  // namespace intake::sheet
