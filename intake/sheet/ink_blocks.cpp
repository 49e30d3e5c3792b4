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
    const CellGrid grid(ink, dotsOfCell);
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
