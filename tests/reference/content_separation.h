#pragma once

#include <vector>

namespace reference {

/// Rows of levels of K, 0 paper and 255 black, all of the same length.
using Levels = std::vector<std::vector<int>>;

/// A page whose bilevel places are made black and white, worked out block by block and dot by dot
/// on the whole page: blocks of 8 x 8 dots, windows of 3 x 3 blocks, four rounds of spreading.
Levels separatedContent(const Levels& page, int dpi);

}  // namespace reference
