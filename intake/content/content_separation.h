#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <vector>

#include "intake/content/block_kernels.h"
#include "intake/content/block_row.h"

namespace intake::content {

/// A page of K, one byte per dot, 0 paper and 255 black.
struct PageShape {
    std::size_t columns;
    std::size_t rows;
    unsigned dpi;
};

/// Tells the bilevel places of a page (text, codes, line art, of whatever colour) from continuous
/// ones (photographs, gradients, tints), and makes the bilevel ones black and white. Mixed raster
/// content (ITU-T T.44) has the layers for it; here the continuous one is what a halftone shades.
///
/// Blocks of 8 x 8 dots are classified by the levels in a window of 3 x 3 blocks, as block
/// thresholding does it (R. de Queiroz, Z. Fan and T. Tran, "Optimizing block-thresholding
/// segmentation for multilayer compression of compound images", IEEE Transactions on Image
/// Processing 9, 2000): smooth dots of middle levels, and squares of one level, make a block
/// continuous. That spreads to blocks that touch it with more than paper, along a row of blocks and
/// four rows up and down, so that a place is treated alike as far as it goes, and a letter whole.
/// What is left, has contrast and lies on paper is cut at the middle of the window's levels
/// (J. Bernsen, "Dynamic thresholding of grey-level images", ICPR 1986): blurred bars keep their
/// width with it.
///
/// Takes a page row by row and gives it back some 80 rows later at 203 dpi; holds a few rows of
/// blocks.
class ContentSeparation {
public:
    /// Takes the rows that are ready, in order, one byte per column.
    using RowSink = std::function<void(std::span<const std::uint8_t>)>;

    ContentSeparation(const PageShape& page, RowSink sink);

    /// Takes the next row, of `columns` bytes. With the page's last row all that is left comes out.
    void push(std::span<const std::uint8_t> row);

private:
    using Index = std::ptrdiff_t;

    BlockRow* at(Index i);
    void endBlockRow();
    void step(Index newest);
    void findTints(Index i);
    void findSeeds(Index i);
    template <typename Predicate>
    bool isAnyAround(Index i, Predicate holds);
    void sumAround(Index i, const PerBlock& (*valuesOf)(const BlockRow&));
    void spread(Index i, std::size_t from);
    void decide(Index i);
    void putOut(Index i);
    void putOutLines(const BlockRow& row);
    bool cut(std::size_t block, int least, int most);
    bool cutAsAround(Index i, std::size_t block);
    void choose(Index i, std::size_t block);

    PageShape page_;
    RowSink sink_;
    Index blockRows_;
    /// Blocks along the edge of a square of a tint.
    std::size_t tintBlocks_;
    /// How many rows of blocks seeds, and rows that come out, are behind the newest one.
    Index seedDelay_, delay_;
    std::vector<BlockRow> ring_;
    Index current_ = 0;
    /// With a zero on both sides, and what sumAround found last.
    std::vector<std::uint16_t> columnSums_, sums_;
    Treatments treatments_;
    std::vector<std::uint8_t> result_;
};

}  // namespace intake::content
