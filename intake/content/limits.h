#pragma once

namespace intake::content {

// Levels of K, 0 paper to 255 black. All were found by trial with codes, texts and photographs;
// what stands beside them says between which things they lie.

/// Range of a window from which on there is something to tell apart: the faintest text and lines
/// that are made black, above the noise of JPEG pictures.
inline constexpr int leastContrast = 24;
/// A dot is smooth when it changes by no more than this part of its window's range, or so much.
inline constexpr int smoothPart = 6;
inline constexpr int leastTolerance = 2;
/// Smooth dots in three by three blocks (576 dots) that make the middle one continuous. Codes and
/// texts that were blurred and came as JPEG have 24 at most, photographs 84 in their middle block.
inline constexpr int fewestSmoothDots = 40;
/// The lightest level of a window with bilevel content: paper, also under JPEG noise.
inline constexpr int darkestPaper = 48;

/// A tint is flat within this range, and darker than that.
inline constexpr int tintRange = 24;
inline constexpr int lightestTint = 24;
/// Tints that are lighter are taken for noise unless they are as even as only drawings are.
inline constexpr int evenRange = 2;
inline constexpr int lightestEvenTint = 6;
/// Edge of the smallest square of a tint in mm: wider than the bars of codes and strokes of
/// letters, and less than the rows of tables.
inline constexpr double tintEdge = 4;

/// Blocks touch with levels between these two, or with levels that are alike and above the third.
inline constexpr int lightTouch = 32;
inline constexpr int blackTouch = 248;
inline constexpr int paperTouch = 8;

/// So many continuous blocks around one make it continuous.
inline constexpr int mostOfNeighbours = 5;
/// Beside what is continuous, a block of levels up to this is a light part of it.
inline constexpr int lightMost = 48;
/// Likewise a block of levels above this is a dark part, unless all of it is as dark as the second.
inline constexpr int darkLeast = 207;
inline constexpr int darkestPart = 249;

/// Where nothing is to be told apart: levels that are paper, and those that are black.
inline constexpr int paperMost = 6;
inline constexpr int blackLeast = 232;

}  // namespace intake::content
